// Documents as HTML: nothing in them gets out of its text. How they look stands in
// rich_text/html.txt.
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

TEST(Html, GreatTablesAreNotMerged)
{
    std::string rows;
    for (int i = 0; i < 10'001; ++i)
        rows += "\\trowd\\clmgf\\cellx900\\clmrg\\cellx1900 a\\cell b\\cell\\row";
    const Markup markup = ReadMarkup(ToHtml(DocumentOf(rows), Trusting));
    EXPECT_EQ(std::ranges::count(markup.tags, "td"), 20'002);
    EXPECT_EQ(markup.fault, "");
}

TEST(Html, IsNoLongerThanAPageCanHold)
{
    std::string body;
    for (int i = 0; i < 35'000; ++i) body += "\\b a\\b0 c\\par\\trowd\\cellx9 x\\cell\\row\\pard ";
    const std::size_t most = std::size_t{16} << 20, size = Html(body).size();
    EXPECT_GT(size, most);
    EXPECT_LT(size, most + 1000);
}

} // namespace
} // namespace selvane::rich_text
