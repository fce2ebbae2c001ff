// Groups, and the way of words and text to the destination that they are for.
#include "rich_text/reader.h"

#include "rich_text/body.h"
#include "rich_text/fields.h"
#include "rich_text/formats.h"
#include "rich_text/text_decoder.h"
#include "rich_text/tokens.h"
#include "rich_text/words.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMaxSavedGroups = 1000;
constexpr std::size_t kMaxBodies = 9; // the body, and text boxes within text boxes

class Reader
{
public:
    explicit Reader(std::string_view bytes) : tokens_(bytes)
    {
        group_.destination = &bodies_.emplace_back(content_);
    }

    ReadResult Read()
    {
        while (!done_ && !tokens_.RanOut() && !content_.budget.IsSpent()) OnToken(tokens_.Next());
        unsavedDepth_ = 0;
        while (!IsInDocumentGroup()) CloseGroup();
        content_.document.blocks = InnermostBody().Finish(group_);
        if (tokens_.RanOut() && content_.shown == 0) return ReadError::NothingReadable;
        content_.document.fonts = content_.fonts.Names();
        return std::move(content_.document);
    }

private:
    struct Words; // tables of what the words do

    void OnWord(const Token& word);

    void OnToken(const Token& token)
    {
        if (token.kind == TokenKind::GroupStart) return OpenGroup();
        if (token.kind == TokenKind::GroupEnd) return CloseGroup();
        if (token.kind == TokenKind::Symbol && token.text == "*" && atGroupStart_) {
            starred_ = true;
            return;
        }
        if (token.kind == TokenKind::Text) {
            OnText(token.text);
        } else if (toSkip_ > 0) { // only there for readers without Unicode
            --toSkip_;
        } else if (token.kind == TokenKind::Word || token.kind == TokenKind::Symbol) {
            OnWord(token);
        } else if (token.kind == TokenKind::Byte && token.number >= 0) {
            const char byte = static_cast<char>(token.number);
            Decode({&byte, 1});
        } else if (token.kind == TokenKind::Binary && IsIn(picture_)) {
            picture_.AddBytes(token.text);
        }
        atGroupStart_ = false;
        starred_ = false;
    }

    void OnText(std::string_view text)
    {
        const auto skipped = std::min(static_cast<std::size_t>(toSkip_), text.size());
        toSkip_ -= static_cast<std::int32_t>(skipped);
        text.remove_prefix(skipped);
        if (text.empty()) return;
        if (group_.destination->takes == Destination::Takes::Bytes)
            group_.destination->OnText(text, group_);
        else
            Decode(text);
    }

    // Groups.

    void OpenGroup()
    {
        decoder_.Reset();
        toSkip_ = 0;
        atGroupStart_ = true;
        starred_ = false;
        if (saved_.size() >= kMaxSavedGroups) {
            ++unsavedDepth_;
            return;
        }
        saved_.push_back(group_);
        group_.ends = nullptr;
        group_.endsField = false;
    }

    void CloseGroup()
    {
        decoder_.Reset();
        toSkip_ = 0;
        atGroupStart_ = false;
        starred_ = false;
        if (unsavedDepth_ > 0) {
            --unsavedDepth_;
            return;
        }
        if (IsInDocumentGroup()) { // what follows it is none of the document
            done_ = true;
            return;
        }
        const bool endsField = group_.endsField;
        if (group_.ends) group_.ends->OnEnd(group_);
        if (group_.ends == &picture_) InnermostBody().AddPicture(picture_, group_);
        if (group_.ends == &InnermostBody()) bodies_.pop_back();
        group_ = std::move(saved_.back());
        saved_.pop_back();
        if (endsField) EndField();
    }

    bool IsInDocumentGroup() const { return saved_.size() <= 1; }
    bool MayEnter() const { return !IsInDocumentGroup() && unsavedDepth_ == 0; }

    // Makes the group one of the destination; skips it if that is null, or the group was not saved.
    // The document's own group can be none: that would lose everything after it.
    bool Enter(Destination* destination)
    {
        if (IsInDocumentGroup()) return false;
        const bool enters = destination && unsavedDepth_ == 0;
        if (enters)
            group_.destination = group_.ends = destination;
        else
            tokens_.SkipGroup();
        return enters;
    }

    Body& InnermostBody() { return bodies_.back(); }
    bool IsIn(const Destination& destination) const { return group_.destination == &destination; }
    bool IsInBody() { return IsIn(InnermostBody()); }
    bool IsInShape() { return IsIn(unseen_) && group_.outside == &InnermostBody(); }

    // Text.

    Encoding CurrentEncoding() const
    {
        if (IsIn(content_.fonts)) return content_.fonts.EncodingOfNames();
        Encoding encoding = content_.fonts.EncodingOf(group_.character.font);
        encoding.isLabelTemplate = group_.destination->takes == Destination::Takes::LabelTemplate;
        return encoding;
    }

    void Decode(std::string_view bytes)
    {
        if (group_.destination->takes == Destination::Takes::Nothing) return;
        EmitText(decoder_.Bytes(bytes, CurrentEncoding()));
    }

    void EmitText(std::string_view text)
    {
        if (group_.destination->takes != Destination::Takes::Bytes)
            group_.destination->OnText(text, group_);
    }

    void PutUnicode(const Token& word)
    {
        if (!word.hasNumber) return;
        EmitText(decoder_.Unicode(word.number, CurrentEncoding()));
        toSkip_ = group_.unicodeSkip;
    }

    // Parts of the body.

    // No font or colour is a paragraph: the brace that ends their table is missing.
    void StartParagraph()
    {
        group_.paragraph = {};
        if (!IsIn(content_.fonts) && !IsIn(content_.colours)) return;
        group_.destination = &InnermostBody();
        group_.ends = nullptr;
    }

    void EnterLabel()
    {
        ShortText& label = InnermostBody().storedLabel;
        if (Enter(IsInBody() ? &label : nullptr)) label.value.clear();
    }

    // The definition is of the paragraph, which the group around it belongs to.
    void EnterOldList()
    {
        OldList* list = MayEnter() && IsInBody() ? content_.lists.AddOldList() : nullptr;
        if (Enter(list)) saved_.back().paragraph.oldList = group_.paragraph.oldList = list;
    }

    // An object, a shape: of what is in it, only the parts that say so are seen.
    void EnterUnseen()
    {
        if (IsIn(unseen_)) return;
        const bool isLabel = IsIn(InnermostBody().storedLabel);
        const bool isInstruction = std::ranges::any_of(
            fields_, [this](const Field& field) { return IsIn(field.instruction); });
        Destination* outside = group_.destination;
        if (Enter(isLabel || isInstruction ? nullptr : &unseen_)) group_.outside = outside;
    }

    void LeaveUnseen()
    {
        if (IsIn(unseen_)) group_.destination = group_.outside;
    }

    void EnterTextBox()
    {
        if (IsInShape()) LeaveUnseen();
        Body& around = InnermostBody();
        if (!MayEnter() || !IsIn(around) || group_.ends == &around || bodies_.size() >= kMaxBodies)
            return;
        group_.paragraph = {};
        Enter(&bodies_.emplace_back(content_, &around));
    }

    void EnterPicture()
    {
        if (Enter(IsInBody() || IsIn(shapeValue_) ? &picture_ : nullptr)) picture_.Start();
    }

    // Fields: what the instruction is, the result shows.

    void StartField()
    {
        if (!MayEnter() || group_.endsField) return;
        fields_.emplace_back().shownBefore = content_.shown;
        group_.endsField = true;
    }

    void StartFieldResult()
    {
        if (fields_.empty() || !IsInBody()) return;
        const std::int32_t link = fields_.back().Link(content_.document);
        if (link >= 0) group_.link = link;
    }

    // A symbol's field need not store what it shows.
    void EndField()
    {
        const Field& field = fields_.back();
        const bool mayShow = field.shownBefore == content_.shown && IsInBody();
        const auto symbol = mayShow ? field.Symbol() : std::nullopt;
        fields_.pop_back();
        if (!symbol) return;
        const char byte = static_cast<char>(symbol->code & 0xFF);
        const bool isByte =
            symbol->code < 0x100 || (symbol->code >= 0xF000 && symbol->code < 0xF100);
        const Encoding current = CurrentEncoding();
        const Glyphs glyphs =
            symbol->font.empty() ? current.glyphs : GlyphsOfFontName(symbol->font);
        if (glyphs == Glyphs::Text && (symbol->isUnicode || !isByte))
            EmitText(decoder_.CodePoint(static_cast<char32_t>(symbol->code), current));
        else
            EmitText(decoder_.Bytes({&byte, 1}, {glyphs, kWesternPage}));
    }

    Content content_;
    std::deque<Body> bodies_;  // never empty; the innermost text box last
    std::deque<Field> fields_; // open ones, the innermost last
    PictureReader picture_;
    Destination unseen_{Destination::Takes::Nothing};     // an object or a shape
    Destination shapeValue_{Destination::Takes::Nothing}; // a property of a shape

    Tokens tokens_;
    TextDecoder decoder_;
    Group group_;
    std::vector<Group> saved_;
    std::size_t unsavedDepth_ = 0; // groups open beyond those saved
    bool done_ = false;
    bool atGroupStart_ = false;
    bool starred_ = false;
    std::int32_t toSkip_ = 0; // characters still to skip after \u
};

struct Reader::Words
{
    template <auto Action> static void Do(Reader& r, const Token&) { (r.*Action)(); }

    template <auto End> static void InBody(Reader& r, const Token&)
    {
        if (!r.IsInBody()) return;
        r.decoder_.Reset(); // no character goes on past a paragraph's end
        (r.InnermostBody().*End)(r.group_);
    }

    template <char32_t Character> static void Put(Reader& r, const Token&)
    {
        r.EmitText(r.decoder_.Character(Character));
    }

    template <std::int32_t Page> static void SetCharacterSet(Reader& r, const Token&)
    {
        r.content_.fonts.characterSetPage = Page;
    }

    template <auto Member> static void Paint(Reader& r, const Token& word)
    {
        r.group_.character.*Member = r.content_.colours.Find(word.number);
    }

    // Words that say what their group is, and so may follow \*.
    static constexpr WordTable<Reader, 64> kGroups{
        {"fonttbl", [](Reader& r, const Token&) { r.Enter(&r.content_.fonts); }},
        {"colortbl", [](Reader& r, const Token&) { r.Enter(&r.content_.colours); }},
        {"stylesheet", [](Reader& r, const Token&) { r.Enter(&r.content_.styles); }},
        {"listtable", [](Reader& r, const Token&) { r.Enter(&r.content_.lists.table); }},
        {"listoverridetable",
         [](Reader& r, const Token&) { r.Enter(&r.content_.lists.overrides); }},
        {"listtext pntext", Do<&Reader::EnterLabel>},
        {"pn", Do<&Reader::EnterOldList>},
        {"nesttableprops",
         [](Reader& r, const Token&) { r.group_.inNestedTableProperties = true; }},
        {"field", Do<&Reader::StartField>},
        {"fldinst",
         [](Reader& r, const Token&) {
             r.Enter(r.fields_.empty() ? nullptr : &r.fields_.back().instruction);
         }},
        {"fldrslt", Do<&Reader::StartFieldResult>},
        {"pict", Do<&Reader::EnterPicture>},
        {"shppict", [](Reader&, const Token&) {}},
        {"object shp shpgrp shpinst do upr", Do<&Reader::EnterUnseen>},
        {"result ud", Do<&Reader::LeaveUnseen>},
        {"shptxt dptxbxtext", Do<&Reader::EnterTextBox>},
    };

    static constexpr WordTable<Reader, 256> kOthers{
        // Groups that no reader of the body sees.
        {"info title subject author manager company operator category keywords comment doccomm "
         "hlinkbase header headerl headerr headerf footer footerl footerr footerf footnote ftnsep "
         "ftnsepc ftncn aftnsep aftnsepc aftncn annotation atnid atnauthor atntime atndate atnicn "
         "atnref atnparent atrfstart atrfend bkmkstart bkmkend xe tc tcn rxe nonshppict "
         "nonesttables shprslt sn picprop blipuid objdata objclass objname objalias objsect falt "
         "panose fname fontemb listname liststylename levelnumbers pnseclvl filetbl revtbl "
         "rsidtbl generator template nextfile private background datafield formfield userprops "
         "keycode leveltext pntxtb pntxta",
         [](Reader& r, const Token&) { r.Enter(nullptr); }},
        {"sv", // it may be the picture that the shape shows
         [](Reader& r, const Token&) { r.Enter(r.IsInShape() ? &r.shapeValue_ : nullptr); }},

        {"ansi", SetCharacterSet<1252>},
        {"mac", SetCharacterSet<10000>},
        {"pc", SetCharacterSet<437>},
        {"pca", SetCharacterSet<850>},
        {"ansicpg",
         [](Reader& r, const Token& word) { r.content_.fonts.codePage = KnownPage(word.number); }},
        {"deff", [](Reader& r, const Token& word) { r.content_.fonts.defaultFont = word.number; }},

        {"pard", Do<&Reader::StartParagraph>},
        {"par", InBody<&Body::EndParagraph>},
        {"page sect column", InBody<&Body::EndPendingParagraph>},
        {"cell", InBody<&Body::EndCell>},
        {"row", InBody<&Body::EndRow>},
        {"nestcell", InBody<&Body::EndNestedCell>},
        {"nestrow", InBody<&Body::EndNestedRow>},

        {"cf", Paint<&CharacterState::colour>},
        {"cb highlight chcbpat", Paint<&CharacterState::background>},
        {"clcbpat",
         [](Reader& r, const Token& word) {
             r.InnermostBody().Definition(r.group_).next.background =
                 r.content_.colours.Find(word.number);
         }},

        {"u", [](Reader& r, const Token& word) { r.PutUnicode(word); }},
        {"tab", Put<'\t'>},
        {"line lbr", Put<'\n'>},
        {"~", Put<0x00A0>},
        {"-", Put<0x00AD>},
        {"_", Put<0x2011>},
        {"emdash", Put<0x2014>},
        {"endash", Put<0x2013>},
        {"emspace", Put<0x2003>},
        {"enspace", Put<0x2002>},
        {"qmspace", Put<0x2005>},
        {"lquote", Put<0x2018>},
        {"rquote", Put<0x2019>},
        {"ldblquote", Put<0x201C>},
        {"rdblquote", Put<0x201D>},
        {"bullet", Put<0x2022>},
        {"zwbo", Put<0x200B>},
        {"zwnbo", Put<0x2060>},
        {"zwj", Put<0x200D>},
        {"zwnj", Put<0x200C>},
        {"ltrmark", Put<0x200E>},
        {"rtlmark", Put<0x200F>},
        // Some writers escape the second byte of a two-byte character like this.
        {"\\ { }", [](Reader& r, const Token& symbol) { r.Decode(symbol.text); }},
    };
};

// A destination's own words come first: a list in its table is none of a paragraph.
void Reader::OnWord(const Token& word)
{
    if (starred_ && word.kind == TokenKind::Word) {
        if (!Words::kGroups.Apply(*this, word)) tokens_.SkipGroup();
        return;
    }
    if (Destination* destination = group_.destination->OnWord(word)) {
        if (!IsIn(*destination)) Enter(destination);
        return;
    }
    const bool isKnown = ApplyFormatWord(word, group_) || Words::kOthers.Apply(*this, word) ||
                         Words::kGroups.Apply(*this, word);
    if (!isKnown) InnermostBody().Definition(group_).OnWord(word);
}

// The document from its first brace on; empty if the bytes are none.
std::string_view DocumentIn(std::string_view bytes)
{
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    const std::size_t start = bytes.find_first_not_of(std::string_view(" \t\r\n\f\v\0", 7));
    if (start == std::string_view::npos) return {};
    const std::string_view document = bytes.substr(start);
    return document.starts_with("{\\rtf") ? document : std::string_view();
}

} // namespace

ReadResult Read(std::string_view bytes)
{
    if (bytes.size() > kMaxBytes) return ReadError::TooBig;
    const std::string_view document = DocumentIn(bytes);
    if (document.empty()) return ReadError::NotRichText;
    return Reader(document).Read();
}

} // namespace selvane::rich_text
