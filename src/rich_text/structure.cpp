// What the words about lists, tables, fields, pictures and destinations do.
#include "rich_text/code_page_tables.h"
#include "rich_text/fields.h"
#include "rich_text/words.h"

#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMaxStreams = 9; // the body, and text boxes within text boxes
constexpr std::size_t kMaxPictures = 65'536;
constexpr std::size_t kMaxLinks = 65'536;
constexpr std::size_t kMaxOldLists = 65'536;
constexpr std::int32_t kLastListLevel = kListLevels - 1;

std::string Trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t\n");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\n") - first + 1);
}

} // namespace

// Destinations. The document's own group can be none: that would lose everything after it.

bool RichTextInterpreter::Enter(Destination destination)
{
    if (saved_.size() <= 1) return false;
    if (unsavedDepth_ > 0) {
        tokens_.SkipGroup();
        return false;
    }
    state_.destination = destination;
    state_.endsDestination = true;
    return true;
}

void RichTextInterpreter::EndDestination(Destination destination)
{
    if (destination == Destination::Picture)
        EndPicture();
    else if (destination == Destination::ColourTable)
        colours_.Close();
}

void RichTextInterpreter::Skip(const Token&, std::int32_t)
{
    if (saved_.size() > 1) tokens_.SkipGroup();
}

void RichTextInterpreter::Transparent(const Token&, std::int32_t) {}

void RichTextInterpreter::HeaderTable(const Token&, std::int32_t destination)
{
    Enter(static_cast<Destination>(destination));
}

// Parts of a list definition, and nothing elsewhere.
void RichTextInterpreter::Part(const Token& token, std::int32_t destination)
{
    const bool isInList =
        state_.destination == Destination::ListTable || state_.destination == Destination::OldList;
    if (isInList)
        Enter(static_cast<Destination>(destination));
    else
        Skip(token, 0);
}

void RichTextInterpreter::StoredLabel(const Token& token, std::int32_t)
{
    if (!IsInBody())
        Skip(token, 0);
    else if (Enter(Destination::Label))
        streams_.back().label.clear();
}

void RichTextInterpreter::Container(const Token& token, std::int32_t)
{
    if (state_.destination == Destination::Nowhere) return;
    const Destination outside = state_.destination;
    const bool mayShow = outside != Destination::FieldInstruction && outside != Destination::Label;
    if (!mayShow)
        Skip(token, 0);
    else if (Enter(Destination::Nowhere))
        state_.outside = outside;
}

// The value of a shape's property, which may be the picture that the shape shows.
void RichTextInterpreter::ShapeValue(const Token& token, std::int32_t)
{
    const bool mayShow =
        state_.destination == Destination::Nowhere && state_.outside == Destination::Body;
    if (!mayShow)
        Skip(token, 0);
    else
        Enter(Destination::ShapeValue);
}

void RichTextInterpreter::BackOutside(const Token&, std::int32_t)
{
    if (state_.destination == Destination::Nowhere) Enter(state_.outside);
}

void RichTextInterpreter::StartTextBox(const Token& token, std::int32_t)
{
    if (state_.destination == Destination::Nowhere && state_.outside == Destination::Body)
        Enter(Destination::Body);
    if (!IsInBody() || unsavedDepth_ > 0 || streams_.size() >= kMaxStreams || state_.endsTextBox)
        return;
    state_.endsTextBox = true;
    ResetParagraph(token, 0);
    streams_.push_back({RichTextFlow(budget_), {}});
}

void RichTextInterpreter::EndTextBox()
{
    if (Flow().HasPendingRuns()) EndParagraphAt(static_cast<std::size_t>(state_.tableNesting));
    std::vector<Block> blocks = Flow().Finish();
    streams_.pop_back();
    Flow().AttachAfterParagraph(std::move(blocks));
}

void RichTextInterpreter::NestedTableProperties(const Token&, std::int32_t)
{
    state_.inNestedTableProperties = true;
}

// Fields.

void RichTextInterpreter::StartField(const Token&, std::int32_t)
{
    if (unsavedDepth_ > 0 || state_.endsField || saved_.size() <= 1) return;
    fields_.push_back({{}, shown_, false, -1});
    state_.endsField = true;
}

void RichTextInterpreter::StartFieldInstruction(const Token& token, std::int32_t)
{
    if (fields_.empty()) return Skip(token, 0);
    if (Enter(Destination::FieldInstruction)) state_.field = fields_.size() - 1;
}

void RichTextInterpreter::StartFieldResult(const Token&, std::int32_t)
{
    if (fields_.empty() || !IsInBody()) return;
    Field& field = fields_.back();
    if (!std::exchange(field.hasResult, true)) field.link = LinkOf(field.instruction);
    if (field.link >= 0) state_.link = field.link;
}

std::int32_t RichTextInterpreter::LinkOf(const std::string& instruction)
{
    std::string target = LinkTarget(instruction);
    if (target.empty() || document_.links.size() >= kMaxLinks) return -1;
    document_.links.push_back(std::move(target));
    return static_cast<std::int32_t>(document_.links.size()) - 1;
}

void RichTextInterpreter::EndField()
{
    const bool showedNothing = fields_.back().shownBefore == shown_;
    if (showedNothing && IsInBody()) EmitSymbolField();
    fields_.pop_back();
}

void RichTextInterpreter::EmitSymbolField()
{
    const auto symbol = ParseSymbolField(fields_.back().instruction);
    if (!symbol) return;
    const auto byte = static_cast<std::uint8_t>(symbol->code & 0xFF);
    const bool isByte = symbol->code < 0x100 || (symbol->code >= 0xF000 && symbol->code < 0xF100);
    const FontGlyphs glyphs =
        symbol->font.empty() ? CurrentGlyphs() : GlyphsOfFontName(symbol->font);
    if (glyphs == FontGlyphs::Text && (symbol->isUnicode || !isByte))
        return EmitUnicode(static_cast<char32_t>(symbol->code));
    decoded_.clear();
    DecodeByte(byte, glyphs, kWesternPage);
    Emit(decoded_);
}

// Pictures.

void RichTextInterpreter::StartPicture(const Token& token, std::int32_t)
{
    const bool mayShow = IsInBody() || state_.destination == Destination::ShapeValue;
    if (!mayShow)
        Skip(token, 0);
    else if (Enter(Destination::Picture))
        picture_ = {};
}

void RichTextInterpreter::EndPicture()
{
    const bool isShown = !state_.hidden && !state_.deleted && !picture_.IsEmpty();
    if (!isShown || document_.pictures.size() >= kMaxPictures) return;
    document_.pictures.push_back(picture_.Finish(pictureBytes_));
    pictureBytes_ += document_.pictures.back().bytes.size();
    picture_ = {};
    ++shown_;
    Flow().AppendPicture(static_cast<std::int32_t>(document_.pictures.size()) - 1, state_.character,
                         state_.link);
}

// Lists.

void RichTextInterpreter::List(const Token&, std::int32_t)
{
    if (state_.destination == Destination::ListTable) lists_.StartList();
}

void RichTextInterpreter::Level(const Token&, std::int32_t)
{
    if (state_.destination == Destination::ListTable) lists_.StartLevel();
}

void RichTextInterpreter::LevelNumberStyle(const Token& token, std::int32_t)
{
    if (state_.destination != Destination::ListTable) return;
    if (ListLevel* level = lists_.CurrentLevel()) level->style = NumberStyleOf(NumberOf(token));
}

void RichTextInterpreter::LevelStart(const Token& token, std::int32_t)
{
    if (state_.destination == Destination::ListOverrideTable) {
        lists_.SetOverrideStart(NumberOf(token));
    } else if (state_.destination == Destination::ListTable) {
        if (ListLevel* level = lists_.CurrentLevel()) level->start = NumberOf(token);
    }
}

void RichTextInterpreter::ListId(const Token& token, std::int32_t)
{
    if (state_.destination == Destination::ListTable)
        lists_.SetListId(NumberOf(token));
    else if (state_.destination == Destination::ListOverrideTable)
        lists_.SetOverriddenList(NumberOf(token));
}

void RichTextInterpreter::ListOverride(const Token&, std::int32_t)
{
    if (state_.destination == Destination::ListOverrideTable) lists_.StartOverride();
}

void RichTextInterpreter::ListOverrideLevel(const Token&, std::int32_t)
{
    if (state_.destination == Destination::ListOverrideTable) lists_.StartOverrideLevel();
}

void RichTextInterpreter::ListNumber(const Token& token, std::int32_t)
{
    if (state_.destination == Destination::ListOverrideTable)
        lists_.SetOverrideNumber(NumberOf(token));
    else
        state_.listNumber = NumberOf(token);
}

void RichTextInterpreter::ItemLevel(const Token& token, std::int32_t)
{
    state_.listLevel = std::clamp(NumberOf(token), 0, kLastListLevel);
}

void RichTextInterpreter::StartOldList(const Token& token, std::int32_t)
{
    const bool isUsable = IsInBody() && unsavedDepth_ == 0 && oldLists_.size() < kMaxOldLists;
    if (saved_.size() <= 1 || !isUsable) return Skip(token, 0);
    oldLists_.emplace_back();
    // The definition is of the paragraph, which the group around it belongs to.
    saved_.back().oldList = static_cast<std::int32_t>(oldLists_.size()) - 1;
    state_.oldList = saved_.back().oldList;
    Enter(Destination::OldList);
}

RichTextInterpreter::OldList* RichTextInterpreter::CurrentOldList()
{
    return state_.oldList < 0 ? nullptr : &oldLists_[static_cast<std::size_t>(state_.oldList)];
}

// Kind: 0 continuation without a label, 1 bullets, 2 numbers; -1 numbers at the word's level.
void RichTextInterpreter::OldListKind(const Token& token, std::int32_t kind)
{
    OldList* list = CurrentOldList();
    if (state_.destination != Destination::OldList || !list) return;
    list->showsLabel = kind != 0;
    list->isNumbered = kind == 2 || kind < 0;
    if (kind < 0) list->level = std::clamp(NumberOf(token) - 1, 0, kLastListLevel);
}

void RichTextInterpreter::OldListStyle(const Token&, std::int32_t code)
{
    OldList* list = CurrentOldList();
    if (state_.destination == Destination::OldList && list) list->style = NumberStyleOf(code);
}

void RichTextInterpreter::OldListStart(const Token& token, std::int32_t)
{
    OldList* list = CurrentOldList();
    if (state_.destination == Destination::OldList && list)
        list->start = std::clamp(NumberOf(token), 0, 1'000'000);
}

std::optional<ListItem> RichTextInterpreter::OldListItem(std::string stored)
{
    OldList* list = CurrentOldList();
    if (!list || !list->showsLabel) {
        oldListCount_ = 0;
        if (stored.empty()) return std::nullopt;
        return ListItem{state_.listLevel, std::move(stored)};
    }
    const bool goesOn = oldListStyle_ == list->style && oldListLevel_ == list->level;
    oldListStyle_ = list->style;
    oldListLevel_ = list->level;
    if (list->isNumbered) oldListCount_ = goesOn ? oldListCount_ + 1 : 1;
    if (!stored.empty()) return ListItem{list->level, std::move(stored)};
    const std::string number =
        list->isNumbered ? NumberText(list->style, list->start + oldListCount_ - 1) : "";
    return ListItem{list->level, Trimmed(list->before + number + list->after)};
}

// The label that the writer stored is what it showed; only without one it is worked out.
std::optional<ListItem> RichTextInterpreter::FinishedItem()
{
    std::string stored = Trimmed(std::exchange(streams_.back().label, {}));
    if (state_.listNumber <= 0) return OldListItem(std::move(stored));
    oldListCount_ = 0;
    const auto level = static_cast<std::size_t>(state_.listLevel);
    auto label = lists_.NextLabel(state_.listNumber, level);
    if (!stored.empty()) return ListItem{state_.listLevel, std::move(stored)};
    if (!label) return std::nullopt;
    return ListItem{state_.listLevel, Trimmed(*label)};
}

// Tables.

RowDefinition& RichTextInterpreter::Definition()
{
    return Flow().Definition(state_.inNestedTableProperties || state_.tableNesting > 1);
}

void RichTextInterpreter::InTable(const Token& token, std::int32_t)
{
    if (!IsOn(token))
        state_.tableNesting = 0;
    else
        state_.tableNesting = std::max(state_.tableNesting, 1);
}

void RichTextInterpreter::TableNesting(const Token& token, std::int32_t)
{
    state_.tableNesting = std::clamp(NumberOf(token), 0, 1000);
}

void RichTextInterpreter::StartRow(const Token&, std::int32_t)
{
    Definition() = {};
    borderOwner_ = BorderOwner::Other;
}

void RichTextInterpreter::RowEdge(const Token& token, std::int32_t)
{
    Definition().leftEdge = std::clamp(NumberOf(token), -kLongestLength, kLongestLength);
}

void RichTextInterpreter::RowIsHeader(const Token&, std::int32_t)
{
    Definition().repeatedHeader = true;
}

void RichTextInterpreter::CellEdge(const Token& token, std::int32_t)
{
    Definition().AddCell(std::clamp(NumberOf(token), -kLongestLength, kLongestLength));
    borderOwner_ = BorderOwner::Other;
}

void RichTextInterpreter::CellHorizontal(const Token&, std::int32_t merge)
{
    Definition().next.horizontalMerge = static_cast<CellMerge>(merge);
}

void RichTextInterpreter::CellVertical(const Token&, std::int32_t merge)
{
    Definition().next.verticalMerge = static_cast<CellMerge>(merge);
}

void RichTextInterpreter::CellBackground(const Token& token, std::int32_t)
{
    Definition().next.background = colours_.Find(NumberOf(token));
}

void RichTextInterpreter::BorderOf(const Token&, std::int32_t owner)
{
    borderOwner_ = static_cast<BorderOwner>(owner);
}

void RichTextInterpreter::Border(const Token&, std::int32_t)
{
    if (borderOwner_ == BorderOwner::Cell)
        Definition().next.bordered = true;
    else if (borderOwner_ == BorderOwner::Row)
        Definition().bordered = true;
}

void RichTextInterpreter::EndCell(const Token&, std::int32_t)
{
    if (!IsInBody()) return;
    EndParagraphAt(1);
    Flow().EndCell(1);
}

void RichTextInterpreter::EndRow(const Token& token, std::int32_t)
{
    if (!IsInBody()) return;
    if (Flow().HasPendingRuns()) EndCell(token, 0);
    Flow().EndRow(1);
}

void RichTextInterpreter::EndNestedCell(const Token&, std::int32_t)
{
    if (!IsInBody()) return;
    const auto told = static_cast<std::size_t>(state_.tableNesting);
    const std::size_t depth = told > 1 ? told : std::max<std::size_t>(Flow().Depth(), 2);
    EndParagraphAt(depth);
    if (depth <= kMaxTableNesting) Flow().EndCell(depth);
}

void RichTextInterpreter::EndNestedRow(const Token& token, std::int32_t)
{
    const auto depth = static_cast<std::size_t>(state_.tableNesting);
    if (!IsInBody() || depth > kMaxTableNesting) return;
    if (Flow().HasPendingRuns()) EndNestedCell(token, 0);
    Flow().EndRow(2);
}

} // namespace selvane::rich_text
