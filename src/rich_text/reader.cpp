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

// Groups that no reader of the body sees.
constexpr auto kUnseen = SortedNames({
    "info",         "title",      "subject",      "author",     "manager",   "company",
    "operator",     "category",   "keywords",     "comment",    "doccomm",   "hlinkbase",
    "header",       "headerl",    "headerr",      "headerf",    "footer",    "footerl",
    "footerr",      "footerf",    "footnote",     "ftnsep",     "ftnsepc",   "ftncn",
    "aftnsep",      "aftnsepc",   "aftncn",       "annotation", "atnid",     "atnauthor",
    "atntime",      "atndate",    "atnicn",       "atnref",     "atnparent", "atrfstart",
    "atrfend",      "bkmkstart",  "bkmkend",      "xe",         "tc",        "tcn",
    "rxe",          "nonshppict", "nonesttables", "shprslt",    "sn",        "picprop",
    "blipuid",      "objdata",    "objclass",     "objname",    "objalias",  "objsect",
    "falt",         "panose",     "fname",        "fontemb",    "listname",  "liststylename",
    "levelnumbers", "pnseclvl",   "filetbl",      "revtbl",     "rsidtbl",   "generator",
    "template",     "nextfile",   "private",      "background", "datafield", "formfield",
    "userprops",    "keycode",
});

class Reader
{
public:
    explicit Reader(std::string_view bytes) : tokens_(bytes)
    {
        group_.destination = &bodies_.emplace_back(content_);
    }

    ReadResult Read();

private:
    // Tokens.
    void OnToken(const Token& token);
    void OnWord(const Token& word);
    void OnUnicode(const Token& word);
    void OnSymbol(char symbol);
    void OnByte(std::int32_t byte);
    void OnText(std::string_view text);
    void OnBinary(std::string_view bytes);
    bool IsSkipped();

    // Groups.
    void OpenGroup();
    void CloseGroup();
    bool IsInDocumentGroup() const { return saved_.size() <= 1; }
    bool Enter(Destination& destination);
    void SkipGroup();

    // Text.
    Encoding CurrentEncoding() const;
    void Decode(std::string_view bytes);
    void EmitText(std::string_view text);

    // What a group is, by its first word.
    Body& InnermostBody() { return bodies_.back(); }
    bool IsIn(const Destination& destination) const { return group_.destination == &destination; }
    bool IsInShape() { return IsIn(unseen_) && group_.outside == &InnermostBody(); }
    void EnterPart(std::string_view word);
    void EnterUnseen();
    void LeaveUnseen();
    void EnterShapeValue();
    void EnterPicture();
    void EnterTextBox();
    void EnterOldList();
    void EnterLabel();
    void StartField();
    void EndField();
    void EnterFieldInstruction();
    void StartFieldResult();

    struct Words; // tables of what the words do

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

    // Words that say what their group is, and so may follow \*.
    static constexpr auto kGroups = WordTable<Reader>({
        {"fonttbl", [](Reader& r, const Token&) { r.Enter(r.content_.fonts); }},
        {"colortbl", [](Reader& r, const Token&) { r.Enter(r.content_.colours); }},
        {"stylesheet", [](Reader& r, const Token&) { r.Enter(r.content_.styles); }},
        {"listtable", [](Reader& r, const Token&) { r.Enter(r.content_.lists.table); }},
        {"listoverridetable", [](Reader& r, const Token&) { r.Enter(r.content_.lists.overrides); }},
        {"listtext", Do<&Reader::EnterLabel>},
        {"pntext", Do<&Reader::EnterLabel>},
        {"pn", Do<&Reader::EnterOldList>},
        {"nesttableprops",
         [](Reader& r, const Token&) { r.group_.inNestedTableProperties = true; }},
        {"field", Do<&Reader::StartField>},
        {"fldinst", Do<&Reader::EnterFieldInstruction>},
        {"fldrslt", Do<&Reader::StartFieldResult>},
        {"pict", Do<&Reader::EnterPicture>},
        {"shppict", [](Reader&, const Token&) {}},
        {"object", Do<&Reader::EnterUnseen>},
        {"result", Do<&Reader::LeaveUnseen>},
        {"shp", Do<&Reader::EnterUnseen>},
        {"shpgrp", Do<&Reader::EnterUnseen>},
        {"shpinst", Do<&Reader::EnterUnseen>},
        {"shptxt", Do<&Reader::EnterTextBox>},
        {"do", Do<&Reader::EnterUnseen>},
        {"dptxbxtext", Do<&Reader::EnterTextBox>},
        {"upr", Do<&Reader::EnterUnseen>},
        {"ud", Do<&Reader::LeaveUnseen>},
    });

    template <char32_t Character> static void Put(Reader& r, const Token&)
    {
        r.EmitText(r.decoder_.Character(Character));
    }
    template <std::int32_t Page> static void SetCharacterSet(Reader& r, const Token&)
    {
        r.content_.fonts.SetCharacterSet(Page);
    }

    static constexpr auto kOthers = WordTable<Reader>({
        {"ansi", SetCharacterSet<1252>},
        {"mac", SetCharacterSet<10000>},
        {"pc", SetCharacterSet<437>},
        {"pca", SetCharacterSet<850>},
        {"ansicpg",
         [](Reader& r, const Token& word) { r.content_.fonts.SetCodePage(word.number); }},
        {"deff",
         [](Reader& r, const Token& word) { r.content_.fonts.SetDefaultFont(word.number); }},

        {"leveltext", [](Reader& r, const Token& word) { r.EnterPart(word.text); }},
        {"pntxtb", [](Reader& r, const Token& word) { r.EnterPart(word.text); }},
        {"pntxta", [](Reader& r, const Token& word) { r.EnterPart(word.text); }},
        {"sv", Do<&Reader::EnterShapeValue>},
        {"u", [](Reader& r, const Token& word) { r.OnUnicode(word); }},
        {"tab", Put<'\t'>},
        {"line", Put<'\n'>},
        {"lbr", Put<'\n'>},
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
    });
};

ReadResult Reader::Read()
{
    while (!done_ && !content_.budget.IsSpent()) OnToken(tokens_.Next());
    const bool cutOff = tokens_.RanOut();
    unsavedDepth_ = 0;
    while (!IsInDocumentGroup()) CloseGroup();
    content_.document.blocks = InnermostBody().Finish(group_);
    if (cutOff && content_.shown == 0) return ReadError::NothingReadable;
    content_.document.fonts = content_.fonts.Names();
    return std::move(content_.document);
}

void Reader::OnToken(const Token& token)
{
    switch (token.kind) {
    case TokenKind::GroupStart:
        OpenGroup();
        return;
    case TokenKind::GroupEnd:
        CloseGroup();
        return;
    case TokenKind::Word:
        OnWord(token);
        break;
    case TokenKind::Symbol:
        OnSymbol(token.text.front());
        return;
    case TokenKind::Byte:
        OnByte(token.number);
        break;
    case TokenKind::Text:
        OnText(token.text);
        break;
    case TokenKind::Binary:
        OnBinary(token.text);
        break;
    case TokenKind::End:
        done_ = true;
        break;
    }
    atGroupStart_ = false;
    starred_ = false;
}

void Reader::OpenGroup()
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

void Reader::CloseGroup()
{
    decoder_.Reset();
    toSkip_ = 0;
    atGroupStart_ = false;
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

// Counts a token off that is only there for readers without Unicode.
bool Reader::IsSkipped()
{
    if (toSkip_ == 0) return false;
    --toSkip_;
    return true;
}

// A destination's own words come first: a list in its table is none of a paragraph.
void Reader::OnWord(const Token& word)
{
    if (IsSkipped()) return;
    if (starred_) {
        if (!Apply(Words::kGroups, *this, word)) tokens_.SkipGroup();
    } else if (group_.destination->OnWord(word, group_)) {
        if (IsIn(InnermostBody())) decoder_.Reset(); // no character goes on past a paragraph's end
    } else if (ApplyFormatWord(word, group_, content_.colours)) {
        // No font or colour is a paragraph: the brace that ends their table is missing.
        const bool isUnclosed = IsIn(content_.fonts) || IsIn(content_.colours);
        if (!isUnclosed || word.text != "pard") return;
        group_.destination = &InnermostBody();
        group_.ends = nullptr;
    } else if (Apply(Words::kOthers, *this, word) || Apply(Words::kGroups, *this, word)) {
        return;
    } else if (std::ranges::binary_search(kUnseen, word.text)) {
        SkipGroup();
    } else {
        InnermostBody().OnRowWord(word, group_);
    }
}

void Reader::OnSymbol(char symbol)
{
    if (symbol == '*' && atGroupStart_) {
        starred_ = true;
        return;
    }
    atGroupStart_ = false;
    starred_ = false;
    if (IsSkipped()) return;
    switch (symbol) {
    case '~':
        EmitText(decoder_.Character(0x00A0));
        break;
    case '-':
        EmitText(decoder_.Character(0x00AD));
        break;
    case '_':
        EmitText(decoder_.Character(0x2011));
        break;
    case '\\':
    case '{':
    case '}':
        // Some writers escape the second byte of a two-byte character like this.
        Decode({&symbol, 1});
        break;
    default:
        break;
    }
}

void Reader::OnByte(std::int32_t byte)
{
    if (IsSkipped() || byte < 0) return;
    const char raw = static_cast<char>(byte);
    Decode({&raw, 1});
}

void Reader::OnText(std::string_view text)
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

void Reader::OnBinary(std::string_view bytes)
{
    if (IsSkipped()) return;
    if (IsIn(picture_)) picture_.AddBytes(bytes);
}

void Reader::OnUnicode(const Token& word)
{
    if (!word.hasNumber) return;
    EmitText(decoder_.Unicode(word.number, CurrentEncoding()));
    toSkip_ = group_.unicodeSkip;
}

// Text.

Encoding Reader::CurrentEncoding() const
{
    if (IsIn(content_.fonts)) return content_.fonts.EncodingOfNames();
    Encoding encoding = content_.fonts.EncodingOf(group_.character.font);
    encoding.isLabelTemplate = group_.destination->takes == Destination::Takes::LabelTemplate;
    return encoding;
}

void Reader::Decode(std::string_view bytes)
{
    if (group_.destination->takes == Destination::Takes::Nothing) return;
    EmitText(decoder_.Bytes(bytes, CurrentEncoding()));
}

void Reader::EmitText(std::string_view text)
{
    if (!text.empty() && group_.destination->takes != Destination::Takes::Bytes)
        group_.destination->OnText(text, group_);
}

// Groups. The document's own can be no destination: that would lose everything after it.

bool Reader::Enter(Destination& destination)
{
    if (IsInDocumentGroup()) return false;
    if (unsavedDepth_ > 0) {
        tokens_.SkipGroup();
        return false;
    }
    group_.destination = group_.ends = &destination;
    return true;
}

void Reader::SkipGroup()
{
    if (!IsInDocumentGroup()) tokens_.SkipGroup();
}

void Reader::EnterPart(std::string_view word)
{
    if (Destination* part = group_.destination->PartOf(word))
        Enter(*part);
    else
        SkipGroup();
}

void Reader::EnterLabel()
{
    if (!IsIn(InnermostBody()))
        SkipGroup();
    else if (Enter(InnermostBody().storedLabel))
        InnermostBody().storedLabel.value.clear();
}

void Reader::EnterOldList()
{
    const bool isUsable = !IsInDocumentGroup() && IsIn(InnermostBody()) && unsavedDepth_ == 0;
    OldList* list = isUsable ? content_.lists.AddOldList() : nullptr;
    if (!list) return SkipGroup();
    // The definition is of the paragraph, which the group around it belongs to.
    saved_.back().oldList = group_.oldList = list;
    Enter(*list);
}

// An object, a shape: of what is in it, only the parts that say so are seen.
void Reader::EnterUnseen()
{
    if (IsIn(unseen_)) return;
    const bool isLabel = IsIn(InnermostBody().storedLabel);
    const bool isInstruction = std::ranges::any_of(
        fields_, [this](const Field& field) { return IsIn(field.instruction); });
    Destination* outside = group_.destination;
    if (isLabel || isInstruction)
        SkipGroup();
    else if (Enter(unseen_))
        group_.outside = outside;
}

void Reader::LeaveUnseen()
{
    if (IsIn(unseen_)) group_.destination = group_.outside;
}

// It may be the picture that the shape shows.
void Reader::EnterShapeValue()
{
    if (IsInShape())
        Enter(shapeValue_);
    else
        SkipGroup();
}

void Reader::EnterTextBox()
{
    if (IsInShape()) LeaveUnseen();
    Body& around = InnermostBody();
    const bool isUsable = !IsInDocumentGroup() && unsavedDepth_ == 0 && bodies_.size() < kMaxBodies;
    if (!IsIn(around) || !isUsable || group_.ends == &around) return;
    ApplyFormatWord({TokenKind::Word, "pard"}, group_, content_.colours);
    Enter(bodies_.emplace_back(content_, &around));
}

void Reader::EnterPicture()
{
    if (!IsIn(InnermostBody()) && !IsIn(shapeValue_))
        SkipGroup();
    else if (Enter(picture_))
        picture_.Start();
}

// Fields: what the instruction is, the result shows.

void Reader::StartField()
{
    if (unsavedDepth_ > 0 || group_.endsField || IsInDocumentGroup()) return;
    fields_.emplace_back().shownBefore = content_.shown;
    group_.endsField = true;
}

void Reader::EnterFieldInstruction()
{
    if (fields_.empty())
        SkipGroup();
    else
        Enter(fields_.back().instruction);
}

void Reader::StartFieldResult()
{
    if (fields_.empty() || !IsIn(InnermostBody())) return;
    const std::int32_t link = fields_.back().Link(content_.document);
    if (link >= 0) group_.link = link;
}

// A symbol's field need not store what it shows.
void Reader::EndField()
{
    const Field& field = fields_.back();
    const bool mayShow = field.shownBefore == content_.shown && IsIn(InnermostBody());
    const auto symbol = mayShow ? field.Symbol() : std::nullopt;
    fields_.pop_back();
    if (!symbol) return;
    const char byte = static_cast<char>(symbol->code & 0xFF);
    const bool isByte = symbol->code < 0x100 || (symbol->code >= 0xF000 && symbol->code < 0xF100);
    const Encoding current = CurrentEncoding();
    const Glyphs glyphs = symbol->font.empty() ? current.glyphs : GlyphsOfFontName(symbol->font);
    if (glyphs == Glyphs::Text && (symbol->isUnicode || !isByte))
        EmitText(decoder_.CodePoint(static_cast<char32_t>(symbol->code), current));
    else
        EmitText(decoder_.Bytes({&byte, 1}, {glyphs, kWesternPage}));
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
