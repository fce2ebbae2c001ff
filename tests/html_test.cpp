// Documents as HTML: they look as they should, and nothing in them gets out of its text.
#include "markup.h"
#include "rich_text/html.h"
#include "rich_text/reader.h"

#include <gtest/gtest.h>

namespace selvane::rich_text {
namespace {

Document DocumentOf(const std::string& body)
{
    ReadResult result = Read("{\\rtf1\\ansi{\\colortbl;\\red200\\green0\\blue16;}" + body + "}");
    if (auto* document = std::get_if<Document>(&result)) return std::move(*document);
    ADD_FAILURE() << "refused: " << body.substr(0, 200);
    return {};
}

// A rule that trusts what a document says, the worst there can be.
HtmlLink Trusting(std::string_view link)
{
    const bool isDocument = link.ends_with(".rtf");
    return {isDocument ? HtmlLink::Kind::Document : HtmlLink::Kind::Web, std::string(link)};
}

// Without the element around it all.
std::string Html(const std::string& body)
{
    const std::string html = ToHtml(DocumentOf(body), Trusting);
    EXPECT_EQ(ReadMarkup(html).fault, "") << html.substr(0, 1000);
    const std::size_t start = html.find('>') + 1;
    return html.substr(start, html.size() - start - std::string_view("</div>").size());
}

std::string Link(const std::string& target)
{
    return "{\\field{\\*\\fldinst HYPERLINK \"" + target + "\"}{\\fldrslt words}}";
}

TEST(Html, TextIsNeverMarkup)
{
    for (const char* text :
         {"<script>alert(1)</script>", "\"><img src=x onerror=alert(1)>", "' onclick='x",
          "&lt;b&gt;", "&#60;b>", "</span></p></div><h1>", "<!--", "]]>", "style=\"color:red\"",
          "\\u60?b\\u62?", "\\'3cscript\\'3e", "{\\f1 <b>}", "\\u0 <\\u8232?>", "\\line <\\tab>"}) {
        const Document document = DocumentOf(text);
        const Markup markup = ReadMarkup(ToHtml(document, Trusting));
        EXPECT_EQ(markup.fault, "") << text;
        EXPECT_EQ(Visible(markup.text), Visible(PlainText(document.blocks))) << text;
        for (const std::string& tag : markup.tags)
            EXPECT_TRUE(tag.ends_with("div") || tag.ends_with("p") || tag.ends_with("span") ||
                        tag == "br")
                << tag;
    }
    // A label, a font's name and a colour are the other words and numbers that a document brings.
    EXPECT_EQ(Html("{\\fonttbl{\\f0 x\\\"><script>;}}{\\listtext <i>\\tab}\\ls1 a").find("<i>"),
              std::string::npos);
    EXPECT_NE(Html("{\\colortbl;\\red999\\green-5\\blue7 url(x);}\\cf3 a").find("color:#ff0007;"),
              std::string::npos);
}

TEST(Html, LinksLeadWhereTheRuleSaysAndToNoScript)
{
    EXPECT_NE(Html("a " + Link("b.htm") + Link("Energy.rtf")).find("<a href=\"#\" data-link=\"1\""),
              std::string::npos);
    EXPECT_NE(Html(Link("HTTPS://a.example.org/?b=1&c='<\\\\\">"))
                  .find("<a href=\"HTTPS://a.example.org/?b=1&amp;c=&#39;&lt;&quot;&gt;\" target="),
              std::string::npos);
    EXPECT_NE(Html(Link("mailto:a@example.org")).find("<a href=\"mailto:a@example.org\""),
              std::string::npos);
    for (const char* target : {"javascript:alert(1)", "JaVaScRiPt:alert(1)", " javascript:alert(1)",
                               "java\\tab script:x", "data:text/html,<script>", "vbscript:x",
                               "file:///etc/passwd", "http:", "//a.example.org",
                               "https:javascript:x", "x\\\\\" onclick=\\\\\"alert(1)", "#part"})
        EXPECT_EQ(Html(Link(target)).find("<a"), std::string::npos) << target;
    const auto none = [](std::string_view) { return HtmlLink{}; };
    EXPECT_EQ(ToHtml(DocumentOf(Link("https://a.example.org")), none).find("<a"),
              std::string::npos);
}

TEST(Html, FormatsAreStylesInPixels)
{
    const struct
    {
        const char *body, *part;
    } cases[] = {
        {"\\fs20 a", "<span style=\"font-size:13px;\">a</span>"},
        {"\\b\\i\\ul\\cf1 a", "font-weight:bold;font-style:italic;text-decoration:underline;"
                              "color:#c80010;"},
        {"\\strike a", "text-decoration:line-through;"},
        {"\\highlight1 a", "background-color:#c80010;"},
        {"\\fs36\\super a", "font-size:16px;vertical-align:super;line-height:0;"},
        {"\\fs24\\dn6 a", "position:relative;top:4px;"},
        {"\\sb60\\sa150\\li300\\ri45\\fi-150 a", "<p style=\"margin:4px 3px 10px 20px;"},
        {"\\li300\\fi-150 a", "text-indent:-10px;"},
        {"\\qc a", "text-align:center;"},
        {"\\fs24\\sl-300 a", "line-height:20px;"},
        {"\\fs24\\sl200 a", "line-height:23px;"}, // a line of 16 pixels is higher than that
        {"\\fs24\\sl600 a", "line-height:40px;"},
        {"\\sl480\\slmult1 a", "line-height:46px;"},
        {"\\fs20\\sl240\\slmult1 a", "line-height:19px;"},
        {"\\rtlpar a", " dir=\"rtl\""},
        {"\\outlinelevel1 a", "<h2 style="},
        {"a\\line b", "a</span><br><span"},
        {"\\par", "<br></p>"},
        {"a\\tab b", "a</span>\t<span"},
        {"\\tx1500 a\\tab b",
         "<span style=\"display:inline-block;min-width:100px;text-indent:0;\">"},
        {"{\\listtext 1.\\tab}\\ls1 a", "<div role=\"list\"><p style=\"margin:0px 0px 0px 24px;"},
        {"{\\listtext 1.\\tab}\\ls1 a\\par\\pard b", "</p></div><p"},
    };
    for (const auto& c : cases)
        EXPECT_NE(Html(c.body).find(c.part), std::string::npos) << c.body << '\n' << Html(c.body);
}

TEST(Html, TablesKeepTheirGrid)
{
    const std::string html =
        Html("\\trowd\\trhdr\\clmgf\\cellx1500\\clmrg\\cellx3000\\clvmgf\\cellx4500\\intbl "
             "a\\cell\\cell c\\cell\\row\\trowd\\clcbpat1\\clbrdrt\\brdrs\\cellx1500\\cellx3000"
             "\\clvmrg\\cellx4500\\intbl d\\cell e\\cell\\cell\\row");
    EXPECT_NE(html.find("<table style=\"border-collapse:collapse;table-layout:fixed;width:300px;\">"
                        "<colgroup><col style=\"width:33.33%;\">"),
              std::string::npos)
        << html;
    const Markup markup = ReadMarkup(html);
    EXPECT_EQ(markup.text, "acde");
    EXPECT_EQ(std::ranges::count(markup.tags, "th"), 2);
    EXPECT_EQ(std::ranges::count(markup.tags, "td"), 2);
    EXPECT_NE(html.find(" colspan=\"2\">"), std::string::npos);
    EXPECT_NE(html.find(" rowspan=\"2\">"), std::string::npos);
    EXPECT_NE(html.find("border:1px solid #808080;background-color:#c80010;"), std::string::npos);
}

TEST(Html, PicturesAreDataOfTwoKindsOnly)
{
    const std::string png = "89504e470d0a1a0a0000000d49484452 0000000300000001 0806000000";
    for (const auto& [more, end] : {std::pair{"", "AAA="}, {"00", "AAAA"}, {"0000", "AAAAAA=="}})
        EXPECT_NE(
            Html("{\\pict\\pngblip\\picwgoal150\\pichgoal75 " + png + more + "}")
                .find("<img alt=\"\" style=\"max-width:100%;width:10px;aspect-ratio:10 / 5;\" "
                      "src=\"data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAMAAAABCAYA" +
                      std::string(end) + "\">"),
            std::string::npos);
    for (const char* other : {"3c7376673e", "47494638396101000100", "00", ""}) {
        const std::string html =
            Html("{\\pict\\picwgoal150\\pichgoal75 " + std::string(other) + "}");
        EXPECT_EQ(html.find("<img"), std::string::npos) << other;
        EXPECT_NE(html.find("width:10px;height:5px;background-color:#f0f0f0;"), std::string::npos);
    }
}

TEST(Html, IsNoLongerThanAPageCanHold)
{
    std::string body;
    for (int i = 0; i < 25'000; ++i) body += "\\b a\\b0 c\\par\\trowd\\cellx9 x\\cell\\row\\pard ";
    EXPECT_LT(Html(body).size(), std::size_t{17} << 20);
}

} // namespace
} // namespace selvane::rich_text
