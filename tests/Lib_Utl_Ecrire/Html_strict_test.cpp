// The strict reader sees the faults that it is there for.
#include "Html_strict.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(HtmlStrict, UneNoteSaineNAPasDeFaute) {
  EXPECT_THAT(fautes_html("<html><meta a=\"b\"><!-- <b> --><body><br><p id='x'>a<a href='#x'>b</a></p>"
                          "<style>a > b { }</style></body></html>"),
              IsEmpty());
}

TEST(HtmlStrict, ChaqueFauteEstVue) {
  EXPECT_THAT(fautes_html("<p><b>x</p></b>"), ElementsAre("</p> closes b", "</b> closes p"));
  EXPECT_THAT(fautes_html("</p>"), ElementsAre("</p> closes nothing"));
  EXPECT_THAT(fautes_html("<TABLE>"), ElementsAre("never closed: table"));
  EXPECT_THAT(fautes_html("<p id=1></p><a name='1'></a>"), ElementsAre("target given twice: 1"));
  EXPECT_THAT(fautes_html("<a href='#2'></a>"), ElementsAre("link without target: #2"));
  EXPECT_THAT(fautes_html("\xE9"), ElementsAre("a byte above 127"));
}

TEST(HtmlStrict, LeTexteVisibleEstSansBalises) {
  EXPECT_EQ(texte_visible("<p title='>'>D&#233;j&#224;</p><!-- non --><script>non</script> vu"),
            "D\xE9j\xE0 vu");
}

TEST(HtmlStrict, LesFichiersLiesSontListes) {
  EXPECT_THAT(fichiers_lies("<a href='#1'>x</a><a href='b.svg'>y</a><object data = 'c.svg' ></object>"),
              ElementsAre("b.svg", "c.svg"));
}
