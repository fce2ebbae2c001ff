// From the mapping tables of the Unicode Consortium (MAPPINGS/VENDORS). Written out where a
// character is plain to read, escaped where it combines, runs from right to left or is blank.
#include "rich_text/code_page_tables.h"

#include <algorithm>

namespace selvane::rich_text {

namespace {

using UpperHalf = char16_t[129]; // with the literal's terminator
using SymbolSet = char16_t[225];

constexpr UpperHalf kPage437 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫"
    u"╪┘┌█▄▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";

constexpr UpperHalf kPage850 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒáíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎ"
    u"Ï┘┌█▄¦Ì▀ÓßÔÒõÕµþÞÚÛÙýÝ\u00AF\u00B4\u00AD±‗¾¶§÷\u00B8°\u00A8·¹³²■\u00A0";

constexpr UpperHalf kPage874 =
    u"€����…�����������‘’“”•–—��������\u00A0\u0E01\u0E02\u0E03\u0E04\u0E05\u0E06\u0E07\u0E08"
    u"\u0E09\u0E0A\u0E0B\u0E0C\u0E0D\u0E0E\u0E0F\u0E10\u0E11\u0E12\u0E13\u0E14\u0E15\u0E16"
    u"\u0E17\u0E18\u0E19\u0E1A\u0E1B\u0E1C\u0E1D\u0E1E\u0E1F\u0E20\u0E21\u0E22\u0E23\u0E24"
    u"\u0E25\u0E26\u0E27\u0E28\u0E29\u0E2A\u0E2B\u0E2C\u0E2D\u0E2E\u0E2F\u0E30\u0E31\u0E32"
    u"\u0E33\u0E34\u0E35\u0E36\u0E37\u0E38\u0E39\u0E3A����฿\u0E40\u0E41\u0E42\u0E43\u0E44"
    u"\u0E45ๆ\u0E47\u0E48\u0E49\u0E4A\u0E4B\u0E4C\u0E4D\u0E4E๏\u0E50\u0E51\u0E52\u0E53\u0E54"
    u"\u0E55\u0E56\u0E57\u0E58\u0E59๚๛����";

constexpr UpperHalf kPage1250 =
    u"€�\u201A�\u201E…†‡�‰Š‹ŚŤŽŹ�‘’“”•–—�™š›śťžź\u00A0ˇ\u02D8Ł¤Ą¦§\u00A8©Ş«¬\u00AD®Ż°±\u02DBł"
    u"\u00B4µ¶·\u00B8ąş»Ľ\u02DDľżŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢßŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűü"
    u"ýţ\u02D9";

constexpr UpperHalf kPage1251 =
    u"ЂЃ\u201Aѓ\u201E…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—�™љ›њќћџ\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї°±Ііґµ¶·ё№є»јЅѕїАБВГ"
    u"ДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯабвгдежзийклмнопрстуфхцчшщъыьэюя";

constexpr UpperHalf kPage1252 =
    u"€�\u201Aƒ\u201E…†‡ˆ‰Š‹Œ�Ž��‘’“”•–—\u02DC™š›œ�žŸ\u00A0¡¢£¤¥¦§\u00A8©ª«¬\u00AD®\u00AF°±²³"
    u"\u00B4µ¶·\u00B8¹º»¼½¾¿ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞßàáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ";

constexpr UpperHalf kPage1253 =
    u"€�\u201Aƒ\u201E…†‡�‰�‹�����‘’“”•–—�™�›����\u00A0\u0385Ά£¤¥¦§\u00A8©�«¬\u00AD®―°±²³\u0384"
    u"µ¶·ΈΉΊ»Ό½ΎΏΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡ�ΣΤΥΦΧΨΩΪΫάέήίΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώ�";

constexpr UpperHalf kPage1254 =
    u"€�\u201Aƒ\u201E…†‡ˆ‰Š‹Œ����‘’“”•–—\u02DC™š›œ��Ÿ\u00A0¡¢£¤¥¦§\u00A8©ª«¬\u00AD®\u00AF°±²³"
    u"\u00B4µ¶·\u00B8¹º»¼½¾¿ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ×ØÙÚÛÜİŞßàáâãäåæçèéêëìíîïğñòóôõö÷øùúûüışÿ";

constexpr UpperHalf kPage1255 =
    u"€�\u201Aƒ\u201E…†‡ˆ‰�‹�����‘’“”•–—\u02DC™�›����\u00A0¡¢£₪¥¦§\u00A8©×«¬\u00AD®\u00AF°±²³"
    u"\u00B4µ¶·\u00B8¹÷»¼½¾¿\u05B0\u05B1\u05B2\u05B3\u05B4\u05B5\u05B6\u05B7\u05B8\u05B9�"
    u"\u05BB\u05BC\u05BD\u05BE\u05BF\u05C0\u05C1\u05C2\u05C3\u05F0\u05F1\u05F2\u05F3\u05F4����"
    u"���\u05D0\u05D1\u05D2\u05D3\u05D4\u05D5\u05D6\u05D7\u05D8\u05D9\u05DA\u05DB\u05DC\u05DD"
    u"\u05DE\u05DF\u05E0\u05E1\u05E2\u05E3\u05E4\u05E5\u05E6\u05E7\u05E8\u05E9\u05EA��\u200E"
    u"\u200F�";

constexpr UpperHalf kPage1256 =
    u"€\u067E\u201Aƒ\u201E…†‡ˆ‰\u0679‹Œ\u0686\u0698\u0688\u06AF‘’“”•–—\u06A9™\u0691›œ\u200C"
    u"\u200D\u06BA\u00A0،¢£¤¥¦§\u00A8©\u06BE«¬\u00AD®\u00AF°±²³\u00B4µ¶·\u00B8¹\u061B»¼½¾"
    u"\u061F\u06C1\u0621\u0622\u0623\u0624\u0625\u0626\u0627\u0628\u0629\u062A\u062B\u062C"
    u"\u062D\u062E\u062F\u0630\u0631\u0632\u0633\u0634\u0635\u0636×\u0637\u0638\u0639\u063A"
    u"\u0640\u0641\u0642\u0643à\u0644â\u0645\u0646\u0647\u0648çèéêë\u0649\u064Aîï\u064B\u064C"
    u"\u064D\u064Eô\u064F\u0650÷\u0651ù\u0652ûü\u200E\u200F\u06D2";

constexpr UpperHalf kPage1257 =
    u"€�\u201A�\u201E…†‡�‰�‹�\u00A8ˇ\u00B8�‘’“”•–—�™�›�\u00AF\u02DB�\u00A0�¢£¤�¦§Ø©Ŗ«¬\u00AD®Æ"
    u"°±²³\u00B4µ¶·ø¹ŗ»¼½¾æĄĮĀĆÄÅĘĒČÉŹĖĢĶĪĻŠŃŅÓŌÕÖ×ŲŁŚŪÜŻŽßąįāćäåęēčéźėģķīļšńņóōõö÷ųłśūüżž"
    u"\u02D9";

constexpr UpperHalf kPage1258 =
    u"€�\u201Aƒ\u201E…†‡ˆ‰�‹Œ����‘’“”•–—\u02DC™�›œ��Ÿ\u00A0¡¢£¤¥¦§\u00A8©ª«¬\u00AD®\u00AF°±²³"
    u"\u00B4µ¶·\u00B8¹º»¼½¾¿ÀÁÂĂÄÅÆÇÈÉÊË\u0300ÍÎÏĐÑ\u0309ÓÔƠÖ×ØÙÚÛÜƯ\u0303ßàáâăäåæçèéêë\u0301í"
    u"îïđñ\u0323óôơö÷øùúûüư₫ÿ";

constexpr UpperHalf kPage10000 =
    u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü†°¢£§•¶ß®©™\u00B4\u00A8≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø¿¡¬√ƒ≈∆«»…"
    u"\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ‡·\u201A\u201E‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ\u02DC\u00AF\u02D8"
    u"\u02D9\u02DA\u00B8\u02DD\u02DBˇ";

constexpr UpperHalf kPage10007 =
    u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ†°Ґ£§•¶І®©™Ђђ≠Ѓѓ∞±≤≥іµґЈЄєЇїЉљЊњјЅ¬√ƒ≈∆«»…\u00A0ЋћЌќѕ–—“"
    u"”‘’÷\u201EЎўЏџ№Ёёяабвгдежзийклмнопрстуфхцчшщъыьэю€";

constexpr UpperHalf kPage852 =
    u"ÇüéâäůćçłëŐőîŹÄĆÉĹĺôöĽľŚśÖÜŤťŁ×čáíóúĄąŽžĘę¬źČş«»░▒▓│┤ÁÂĚŞ╣║╗╝Żż┐└┴┬├─┼Ăă╚╔╩╦╠═╬¤đĐĎËďŇÍÎ"
    u"ě┘┌█▄ŢŮ▀ÓßÔŃńňŠšŔÚŕŰýÝţ\u00B4\u00AD\u02DD\u02DBˇ\u02D8§÷\u00B8°\u00A8\u02D9űŘř■\u00A0";

constexpr UpperHalf kPage866 =
    u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯабвгдежзийклмноп░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫"
    u"╪┘┌█▄▌▐▀рстуфхцчшщъыьэюяЁёЄєЇїЎў°∙·√№¤■\u00A0";

constexpr UpperHalf kPage10006 =
    u"Ä¹²É³ÖÜ\u0385àâä\u0384\u00A8çéèêë£™îï•½‰ôö¦€ùûü†ΓΔΘΛΞΠß®©ΣΪ§≠°·Α±≤≥¥ΒΕΖΗΙΚΜΦΫΨΩάΝ¬ΟΡ≈Τ«»"
    u"…\u00A0ΥΧΆΈœ–―“”‘’÷ΉΊΌΎέήίόΏύαβψδεφγηιξκλμνοπώρστθωςχυζϊϋΐΰ\u00AD";

constexpr UpperHalf kPage10029 =
    u"ÄĀāÉĄÖÜáąČäčĆćéŹźĎíďĒēĖóėôöõúĚěü†°Ę£§•¶ß®©™ę\u00A8≠ģĮįĪ≤≥īĶ∂∑łĻļĽľĹĺŅņŃ¬√ńŇ∆«»…\u00A0ňŐÕ"
    u"őŌ–—“”‘’÷◊ōŔŕŘ‹›řŖŗŠ\u201A\u201EšŚśÁŤťÍŽžŪÓÔūŮÚůŰűŲųÝýķŻŁżĢˇ";

constexpr UpperHalf kPage10081 =
    u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü†°¢£§•¶ß®©™\u00B4\u00A8≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø¿¡¬√ƒ≈∆«»…"
    u"\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸĞğİıŞş‡·\u201A\u201E‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙ\uF8A0ˆ\u02DC\u00AF\u02D8"
    u"\u02D9\u02DA\u00B8\u02DD\u02DBˇ";

constexpr SymbolSet kSymbol =
    u" !∀#∃%&∋()∗+,−./0123456789:;<=>?≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_‾αβχδεφγηιϕκλμνοπθρστυϖω"
    u"ξψζ{|}∼���������������������������������€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓°±″≥×∝∂•÷≠≡≈…⏐⎯↵ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉"
    u"∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓◊\u2329®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪�\u232A∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭�";

struct PageRow
{
    std::int32_t page;
    const char16_t* table;
};

constexpr PageRow kPages[] = {
    {437, kPage437},     {850, kPage850},     {852, kPage852},     {866, kPage866},
    {874, kPage874},     {1250, kPage1250},   {1251, kPage1251},   {1252, kPage1252},
    {1253, kPage1253},   {1254, kPage1254},   {1255, kPage1255},   {1256, kPage1256},
    {1257, kPage1257},   {1258, kPage1258},   {10000, kPage10000}, {10006, kPage10006},
    {10007, kPage10007}, {10029, kPage10029}, {10081, kPage10081},
};

} // namespace

const char16_t* SingleByteTable(std::int32_t page)
{
    const auto* row = std::ranges::find(kPages, page, &PageRow::page);
    return row == std::end(kPages) ? nullptr : row->table;
}

char16_t SymbolCharacter(std::uint8_t byte)
{
    return byte < 0x20 ? kUndefined : kSymbol[byte - 0x20];
}

} // namespace selvane::rich_text
