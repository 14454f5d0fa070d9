#include "host/basics/xml.h"

#include <gtest/gtest.h>

namespace {

using namespace host;

TEST(XmlTexts, HideWhatWouldBeMarkup) {
  EXPECT_EQ(xml::escaped("a < b && \"c\" > d"), "a &lt; b &amp;&amp; \"c\" &gt; d");
}

TEST(XmlTexts, InAttributesKeepQuotesAndLineEnds) {
  EXPECT_EQ(xml::attribute("a \"<b>\"\n\tc"), "a &quot;&lt;b&gt;&quot;&#10;&#9;c");
}

TEST(XmlTexts, HaveOnlyCharactersThatADocumentMayHave) {
  EXPECT_EQ(xml::as_text("K\u00e4se \U0001F600\t\r\n"), "K\u00e4se \U0001F600\t\r\n");
  EXPECT_EQ(xml::as_text(std::string_view("a\0b\x1b[0m", 7)), "a\uFFFDb\uFFFD[0m");
  EXPECT_EQ(xml::as_text("\xff\xc3"), "\uFFFD\uFFFD");
  EXPECT_EQ(xml::as_text("\uFFFE\uFFFD\uFFFF"), "\uFFFD\uFFFD\uFFFD");
}

}  // namespace
