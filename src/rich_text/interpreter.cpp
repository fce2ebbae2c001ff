// Tokens, groups, and the way of text to its destination.
#include "rich_text/interpreter.h"

#include "rich_text/code_page_tables.h"
#include "rich_text/words.h"

#include <algorithm>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMaxSavedGroups = 1000;
constexpr std::size_t kMaxInstruction = 16'384; // bytes of a field's instruction
constexpr char32_t kBullet = 0x2022;

bool IsPlain(char c)
{
    return c >= 0x20 && c < 0x7F;
}

void AppendShort(std::string& target, std::string_view text, std::size_t most)
{
    if (target.size() + text.size() <= most) target += text;
}

} // namespace

RichTextInterpreter::RichTextInterpreter(std::string_view bytes) : tokens_(bytes)
{
    streams_.push_back({RichTextFlow(budget_), {}});
}

RichTextResult RichTextInterpreter::Read()
{
    while (!done_ && !budget_.IsSpent()) OnToken(tokens_.Next());
    return Finish();
}

RichTextResult RichTextInterpreter::Finish()
{
    const bool cutOff = tokens_.RanOut();
    unsavedDepth_ = 0;
    while (saved_.size() > 1) CloseGroup();
    if (Flow().HasPendingRuns()) EndParagraphAt(static_cast<std::size_t>(state_.tableNesting));
    if (cutOff && shown_ == 0) return RichTextError::NothingReadable;
    document_.blocks = Flow().Finish();
    document_.fonts = fonts_.Names();
    return std::move(document_);
}

void RichTextInterpreter::OnToken(const Token& token)
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

void RichTextInterpreter::OpenGroup()
{
    decoder_.Reset();
    highSurrogate_ = 0;
    toSkip_ = 0;
    atGroupStart_ = true;
    starred_ = false;
    if (saved_.size() >= kMaxSavedGroups) {
        ++unsavedDepth_;
        return;
    }
    saved_.push_back(state_);
    state_.endsDestination = state_.endsField = state_.endsTextBox = false;
}

void RichTextInterpreter::CloseGroup()
{
    decoder_.Reset();
    highSurrogate_ = 0;
    toSkip_ = 0;
    atGroupStart_ = false;
    if (unsavedDepth_ > 0) {
        --unsavedDepth_;
        return;
    }
    if (saved_.size() <= 1) { // what follows the document's own group is none of it
        done_ = true;
        return;
    }
    const bool endsField = state_.endsField;
    if (state_.endsDestination) EndDestination(state_.destination);
    if (state_.endsTextBox) EndTextBox();
    state_ = std::move(saved_.back());
    saved_.pop_back();
    if (endsField) EndField();
}

// Counts a token off that is only there for readers without Unicode.
bool RichTextInterpreter::IsSkipped()
{
    if (toSkip_ == 0) return false;
    --toSkip_;
    return true;
}

void RichTextInterpreter::OnWord(const Token& token)
{
    if (IsSkipped()) return;
    const WordRow* row = FindWord(token.text);
    if (starred_ && !(row && row->isDestination)) {
        tokens_.SkipGroup();
    } else if (row) {
        (this->*row->handler)(token, row->argument);
    }
}

void RichTextInterpreter::OnSymbol(char symbol)
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
        EmitCharacter(0x00A0);
        break;
    case '-':
        EmitCharacter(0x00AD);
        break;
    case '_':
        EmitCharacter(0x2011);
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

void RichTextInterpreter::OnByte(std::int32_t byte)
{
    if (IsSkipped() || byte < 0) return;
    const char raw = static_cast<char>(byte);
    Decode({&raw, 1});
}

void RichTextInterpreter::OnText(std::string_view text)
{
    const auto skipped = std::min(static_cast<std::size_t>(toSkip_), text.size());
    toSkip_ -= static_cast<std::int32_t>(skipped);
    text.remove_prefix(skipped);
    if (text.empty()) return;
    if (state_.destination == Destination::Picture)
        picture_.AddHex(text);
    else if (state_.destination == Destination::ColourTable)
        colours_.AddText(text);
    else
        Decode(text);
}

void RichTextInterpreter::OnBinary(std::string_view bytes)
{
    if (IsSkipped()) return;
    if (state_.destination == Destination::Picture) picture_.AddBytes(bytes);
}

std::int32_t RichTextInterpreter::CurrentFont() const
{
    return state_.character.font < 0 ? defaultFont_ : state_.character.font;
}

FontGlyphs RichTextInterpreter::CurrentGlyphs() const
{
    const bool isFontsOwnName = state_.destination == Destination::FontTable;
    return isFontsOwnName ? FontGlyphs::Text : fonts_.Glyphs(CurrentFont());
}

std::int32_t RichTextInterpreter::CurrentPage() const
{
    const bool isFontsOwnName = state_.destination == Destination::FontTable;
    const std::int32_t page = isFontsOwnName ? fonts_.CurrentPage() : fonts_.Page(CurrentFont());
    if (page != 0) return page;
    return codePage_ != 0 ? codePage_ : characterSetPage_;
}

void RichTextInterpreter::Decode(std::string_view bytes)
{
    if (state_.destination == Destination::Nowhere) return;
    highSurrogate_ = 0;
    const FontGlyphs glyphs = CurrentGlyphs();
    const std::int32_t page = CurrentPage();
    decoded_.clear();
    while (!bytes.empty()) {
        if (glyphs == FontGlyphs::Text && !decoder_.IsPending()) {
            const auto end = std::find_if_not(bytes.begin(), bytes.end(), IsPlain);
            const auto length = static_cast<std::size_t>(end - bytes.begin());
            decoded_ += bytes.substr(0, length);
            bytes.remove_prefix(length);
        }
        if (bytes.empty()) break;
        DecodeByte(static_cast<std::uint8_t>(bytes.front()), glyphs, page);
        bytes.remove_prefix(1);
    }
    if (!decoded_.empty()) Emit(decoded_);
}

void RichTextInterpreter::DecodeByte(std::uint8_t byte, FontGlyphs glyphs, std::int32_t page)
{
    const bool isPlaceholder = state_.destination == Destination::LevelText && byte < 0x20;
    if (byte == '\t' || isPlaceholder) {
        decoded_ += static_cast<char>(byte);
    } else if (byte < 0x20 || byte == 0x7F) {
        decoder_.Reset();
    } else if (glyphs == FontGlyphs::Symbol) {
        if (SymbolCharacter(byte) != kUndefined) AppendUtf8(decoded_, SymbolCharacter(byte));
    } else if (glyphs == FontGlyphs::Ornaments) {
        AppendUtf8(decoded_, byte == ' ' ? U' ' : kBullet);
    } else {
        decoder_.Feed(byte, page, decoded_);
    }
}

void RichTextInterpreter::EmitCharacter(char32_t character)
{
    decoder_.Reset();
    highSurrogate_ = 0;
    std::string text;
    AppendUtf8(text, character);
    Emit(text);
}

// Symbol fonts have their glyphs at F020 to F0FF; control characters that Unicode text may
// have become the words they stand for.
void RichTextInterpreter::EmitUnicode(char32_t character)
{
    const bool isGlyph = character >= 0xF020 && character <= 0xF0FF;
    if (isGlyph && state_.destination == Destination::LevelText) return EmitCharacter(kBullet);
    if (isGlyph && CurrentGlyphs() != FontGlyphs::Text) {
        const char byte = static_cast<char>(character & 0xFF);
        return Decode({&byte, 1});
    }
    if (character == 0x0B || character == 0x2028 || character == 0x2029) return EmitCharacter('\n');
    const bool isText = (character >= 0x20 && character != 0x7F && character < 0xFFFE) ||
                        character == '\t' || character > 0xFFFF;
    if (isText) EmitCharacter(character);
}

void RichTextInterpreter::Emit(std::string_view text)
{
    switch (state_.destination) {
    case Destination::Body:
        EmitToBody(text);
        break;
    case Destination::FontTable:
        fonts_.AddName(text);
        break;
    case Destination::StyleSheet:
        headings_.AddName(text, state_.outline);
        break;
    case Destination::Label:
        AppendShort(streams_.back().label, text, kMaxLabelBytes);
        break;
    case Destination::LevelText:
        if (ListLevel* level = lists_.CurrentLevel())
            AppendShort(level->text, text, kMaxLabelBytes);
        break;
    case Destination::OldListBefore:
        if (OldList* list = CurrentOldList()) AppendShort(list->before, text, kMaxLabelBytes);
        break;
    case Destination::OldListAfter:
        if (OldList* list = CurrentOldList()) AppendShort(list->after, text, kMaxLabelBytes);
        break;
    case Destination::FieldInstruction:
        if (state_.field < fields_.size())
            AppendShort(fields_[state_.field].instruction, text, kMaxInstruction);
        break;
    case Destination::Nowhere:
    case Destination::ColourTable:
    case Destination::ListTable:
    case Destination::ListOverrideTable:
    case Destination::OldList:
    case Destination::ShapeValue:
    case Destination::Picture:
        break;
    }
}

void RichTextInterpreter::EmitToBody(std::string_view text)
{
    if (state_.hidden || state_.deleted) return;
    shown_ += text.size();
    Flow().Append(text, state_.character, state_.link);
}

} // namespace selvane::rich_text
