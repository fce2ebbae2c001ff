// From the mapping tables of the Unicode Consortium (MAPPINGS/VENDORS). Written out where a
// character is plain to read, escaped where it combines, runs from right to left or is blank.
#include "rich_text/code_page_tables.h"

namespace selvane::rich_text {

namespace {

using UpperHalf = char16_t[129]; // with the literal's terminator
using SymbolSet = char16_t[225];

constexpr UpperHalf kPage10000 =
    u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü†°¢£§•¶ß®©™\u00B4\u00A8≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø¿¡¬√ƒ≈∆«»…"
    u"\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ‡·\u201A\u201E‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ\u02DC\u00AF\u02D8"
    u"\u02D9\u02DA\u00B8\u02DD\u02DBˇ";

constexpr UpperHalf kPage10006 =
    u"Ä¹²É³ÖÜ\u0385àâä\u0384\u00A8çéèêë£™îï•½‰ôö¦€ùûü†ΓΔΘΛΞΠß®©ΣΪ§≠°·Α±≤≥¥ΒΕΖΗΙΚΜΦΫΨΩάΝ¬ΟΡ≈Τ«»"
    u"…\u00A0ΥΧΆΈœ–―“”‘’÷ΉΊΌΎέήίόΏύαβψδεφγηιξκλμνοπώρστθωςχυζϊϋΐΰ\u00AD";

constexpr UpperHalf kPage10007 =
    u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ†°Ґ£§•¶І®©™Ђђ≠Ѓѓ∞±≤≥іµґЈЄєЇїЉљЊњјЅ¬√ƒ≈∆«»…\u00A0ЋћЌќѕ–—“"
    u"”‘’÷\u201EЎўЏџ№Ёёяабвгдежзийклмнопрстуфхцчшщъыьэю€";

constexpr UpperHalf kPage10081 =
    u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü†°¢£§•¶ß®©™\u00B4\u00A8≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø¿¡¬√ƒ≈∆«»…"
    u"\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸĞğİıŞş‡·\u201A\u201E‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙ\uF8A0ˆ\u02DC\u00AF\u02D8"
    u"\u02D9\u02DA\u00B8\u02DD\u02DBˇ";

constexpr SymbolSet kSymbol =
    u" !∀#∃%&∋()∗+,−./0123456789:;<=>?≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_‾αβχδεφγηιϕκλμνοπθρστυϖω"
    u"ξψζ{|}∼���������������������������������€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓°±″≥×∝∂•÷≠≡≈…⏐⎯↵ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉"
    u"∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓◊\u2329®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪�\u232A∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭�";

} // namespace

const char16_t* UpperHalfOf(std::int32_t page)
{
    if (page == 10000) return kPage10000;
    if (page == 10006) return kPage10006;
    if (page == 10007) return kPage10007;
    return page == 10081 ? kPage10081 : nullptr;
}

char16_t SymbolCharacter(std::uint8_t byte)
{
    return byte < 0x20 ? kUndefined : kSymbol[byte - 0x20];
}

} // namespace selvane::rich_text
