// Gives the tokens of a rich-text document their meaning. One object reads one document.
#pragma once

#include "rich_text/character_sets.h"
#include "rich_text/flow.h"
#include "rich_text/header.h"
#include "rich_text/lists.h"
#include "rich_text/pictures.h"
#include "rich_text/reader.h"
#include "rich_text/rich_text.h"
#include "rich_text/tokens.h"

#include <string>
#include <string_view>
#include <vector>

namespace selvane::rich_text {

class RichTextInterpreter
{
public:
    // The bytes must outlive the interpreter.
    explicit RichTextInterpreter(std::string_view bytes);

    // Call once.
    RichTextResult Read();

private:
    // Where text goes.
    enum class Destination : std::uint8_t {
        Body,
        Nowhere,
        FontTable,
        ColourTable,
        StyleSheet,
        ListTable,
        ListOverrideTable,
        LevelText,
        Label,
        OldList,
        OldListBefore,
        OldListAfter,
        FieldInstruction,
        ShapeValue,
        Picture
    };

    // All that a group saves and restores.
    struct State
    {
        CharacterFormat character;
        ParagraphFormat paragraph;
        std::int32_t style = 0;
        std::int32_t outline = -1;   // 0 to 9; -1: as the style has it
        std::int32_t listNumber = 0; // 0: in no list
        std::int32_t listLevel = 0;
        std::int32_t oldList = -1;     // index into oldLists_
        std::int32_t tableNesting = 0; // 0: in no table
        std::int32_t unicodeSkip = 1;
        std::int32_t link = -1;
        std::size_t field = 0; // whose instruction the text is; an index into fields_
        bool hidden = false;
        bool deleted = false;
        bool inNestedTableProperties = false;
        Destination destination = Destination::Body;
        Destination outside = Destination::Body; // what a part of a Nowhere group may go back to
        // What the end of this very group ends.
        bool endsDestination = false;
        bool endsField = false;
        bool endsTextBox = false;
    };

    // A list as Word 6 told it, with each paragraph.
    struct OldList
    {
        bool showsLabel = false;
        bool isNumbered = false;
        NumberStyle style = NumberStyle::Arabic;
        std::int32_t level = 0;
        std::int32_t start = 1;
        std::string before;
        std::string after;
    };

    struct Field
    {
        std::string instruction;
        std::size_t shownBefore = 0; // shown_ when the field began
        bool hasResult = false;
        std::int32_t link = -1; // what its result links to, known from the first result on
    };

    // The body, or a text box in it.
    struct Stream
    {
        RichTextFlow flow;
        std::string label; // stored label of the pending paragraph
    };

    struct WordRow; // a control word, what it does, and with which argument
    static const WordRow* FindWord(std::string_view name);

    // Tokens and groups.
    void OnToken(const Token& token);
    void OpenGroup();
    void CloseGroup();
    void OnWord(const Token& token);
    void OnSymbol(char symbol);
    void OnByte(std::int32_t byte);
    void OnText(std::string_view text);
    void OnBinary(std::string_view bytes);
    bool IsSkipped();
    RichTextResult Finish();

    // Text on its way to its destination.
    std::int32_t CurrentPage() const;
    std::int32_t CurrentFont() const;
    FontGlyphs CurrentGlyphs() const;
    void Decode(std::string_view bytes);
    void DecodeByte(std::uint8_t byte, FontGlyphs glyphs, std::int32_t page);
    void EmitCharacter(char32_t character);
    void EmitUnicode(char32_t character);
    void Emit(std::string_view text);
    void EmitToBody(std::string_view text);

    // Destinations.
    bool IsInBody() const { return state_.destination == Destination::Body; }
    bool Enter(Destination destination);
    void EndDestination(Destination destination);
    void EndPicture();
    void EndField();
    std::int32_t LinkOf(const std::string& instruction);
    void EmitSymbolField();
    void EndTextBox();

    // Paragraphs.
    RichTextFlow& Flow() { return streams_.back().flow; }
    RowDefinition& Definition();
    void EndParagraphAt(std::size_t depth);
    ParagraphFormat FinishedFormat() const;
    std::optional<ListItem> FinishedItem();
    std::optional<ListItem> OldListItem(std::string stored);
    OldList* CurrentOldList();

    // What the words do; the argument is the one of the word's row.
    using Handler = void (RichTextInterpreter::*)(const Token&, std::int32_t);
    void CharacterSet(const Token& token, std::int32_t page);
    void CodePage(const Token& token, std::int32_t);
    void DefaultFont(const Token& token, std::int32_t);
    void Font(const Token& token, std::int32_t);
    void FontCharacterSet(const Token& token, std::int32_t);
    void FontCodePage(const Token& token, std::int32_t);
    void ColourChannel(const Token& token, std::int32_t channel);
    void UnicodeSkip(const Token& token, std::int32_t);
    void Unicode(const Token& token, std::int32_t);
    void Character(const Token& token, std::int32_t character);

    template <auto Member> void Toggle(const Token& token, std::int32_t);
    void NoUnderline(const Token& token, std::int32_t);
    void Hidden(const Token& token, std::int32_t);
    void Deleted(const Token& token, std::int32_t);
    void Position(const Token& token, std::int32_t position);
    void Raise(const Token& token, std::int32_t sign);
    void FontSize(const Token& token, std::int32_t);
    void TextColour(const Token& token, std::int32_t);
    void Background(const Token& token, std::int32_t);
    void Plain(const Token& token, std::int32_t);

    void ResetParagraph(const Token& token, std::int32_t);
    void Align(const Token& token, std::int32_t alignment);
    template <auto Member> void Length(const Token& token, std::int32_t least);
    template <auto Member> void Flag(const Token& token, std::int32_t value);
    void LineSpacing(const Token& token, std::int32_t);
    void NextTabKind(const Token& token, std::int32_t kind);
    void AddTabStop(const Token& token, std::int32_t);
    void Style(const Token& token, std::int32_t);
    void Outline(const Token& token, std::int32_t);
    void EndParagraph(const Token& token, std::int32_t);
    void Break(const Token& token, std::int32_t);

    void List(const Token& token, std::int32_t);
    void Level(const Token& token, std::int32_t);
    void LevelNumberStyle(const Token& token, std::int32_t);
    void LevelStart(const Token& token, std::int32_t);
    void ListId(const Token& token, std::int32_t);
    void ListOverride(const Token& token, std::int32_t);
    void ListOverrideLevel(const Token& token, std::int32_t);
    void ListNumber(const Token& token, std::int32_t);
    void ItemLevel(const Token& token, std::int32_t);
    void OldListKind(const Token& token, std::int32_t kind);
    void OldListStyle(const Token& token, std::int32_t code);
    void OldListStart(const Token& token, std::int32_t);

    void InTable(const Token& token, std::int32_t);
    void TableNesting(const Token& token, std::int32_t);
    void StartRow(const Token& token, std::int32_t);
    void RowEdge(const Token& token, std::int32_t);
    void RowIsHeader(const Token& token, std::int32_t);
    void CellEdge(const Token& token, std::int32_t);
    void CellHorizontal(const Token& token, std::int32_t merge);
    void CellVertical(const Token& token, std::int32_t merge);
    void CellBackground(const Token& token, std::int32_t);
    void BorderOf(const Token& token, std::int32_t owner);
    void Border(const Token& token, std::int32_t);
    void EndCell(const Token& token, std::int32_t);
    void EndRow(const Token& token, std::int32_t);
    void EndNestedCell(const Token& token, std::int32_t);
    void EndNestedRow(const Token& token, std::int32_t);

    template <auto Member> void PictureLength(const Token& token, std::int32_t);

    void Skip(const Token& token, std::int32_t);
    void Transparent(const Token& token, std::int32_t);
    void HeaderTable(const Token& token, std::int32_t destination);
    void Part(const Token& token, std::int32_t destination);
    void StoredLabel(const Token& token, std::int32_t);
    void StartOldList(const Token& token, std::int32_t);
    void StartPicture(const Token& token, std::int32_t);
    void StartField(const Token& token, std::int32_t);
    void StartFieldInstruction(const Token& token, std::int32_t);
    void StartFieldResult(const Token& token, std::int32_t);
    void Container(const Token& token, std::int32_t);
    void ShapeValue(const Token& token, std::int32_t);
    void BackOutside(const Token& token, std::int32_t);
    void StartTextBox(const Token& token, std::int32_t);
    void NestedTableProperties(const Token& token, std::int32_t);

    RichTextTokens tokens_;
    State state_;
    std::vector<State> saved_;
    std::size_t unsavedDepth_ = 0; // groups open beyond those saved
    bool done_ = false;
    bool atGroupStart_ = false;
    bool starred_ = false;
    std::int32_t toSkip_ = 0; // characters still to skip after \u
    char32_t highSurrogate_ = 0;
    std::size_t shown_ = 0; // bytes of text and pictures that reached the body

    FontTable fonts_;
    ColourTable colours_;
    HeadingStyles headings_;
    ListTables lists_;
    std::vector<OldList> oldLists_;
    std::int32_t oldListCount_ = 0; // numbered paragraphs since the last one that was not
    NumberStyle oldListStyle_ = NumberStyle::Arabic;
    std::int32_t oldListLevel_ = 0;
    std::vector<Field> fields_;
    std::int32_t characterSetPage_ = kWesternPage;
    std::int32_t codePage_ = 0; // 0: none was told
    std::int32_t defaultFont_ = 0;

    ByteDecoder decoder_;
    std::string decoded_;
    PictureReader picture_;
    std::size_t pictureBytes_ = 0;
    TabKind nextTabKind_ = TabKind::Left;
    enum class BorderOwner { Other, Cell, Row };
    BorderOwner borderOwner_ = BorderOwner::Other;

    RichText document_;
    RichTextBudget budget_;
    std::vector<Stream> streams_; // never empty; the innermost text box last
};

} // namespace selvane::rich_text
