#include "page/page.h"

#include <gtest/gtest.h>

#include <string>

namespace quilvane {
namespace {

bool finitPar(std::string_view texte, std::string_view fin) { return texte.ends_with(fin); }

TEST(Page, partiesDansLOrdre) {
    EXPECT_TRUE(pageDebut.starts_with("<!doctype html>"));
    EXPECT_TRUE(finitPar(pageDebut, "<html lang=\""));
    EXPECT_TRUE(pageRapport.starts_with("\">"));
    EXPECT_TRUE(finitPar(pageRapport, "id=\"quilvane-rapport\">"));
    EXPECT_TRUE(pageCatalogue.starts_with("</script>"));
    EXPECT_TRUE(finitPar(pageCatalogue, "id=\"quilvane-catalogue\">"));
    EXPECT_TRUE(pageFin.starts_with("</script>"));
    EXPECT_TRUE(finitPar(pageFin, "</html>\n"));
}

TEST(Page, rienNeVientDAilleurs) {
    const std::string page =
        std::string(pageDebut) + std::string(pageRapport) + std::string(pageCatalogue) + std::string(pageFin);
    EXPECT_NE(page.find("default-src 'none'; style-src 'sha256-"), std::string::npos);
    for (const char* ailleurs :
         {"src=\"", "<link rel=\"stylesheet", "@import", "url(", "https://", "@CSP@", "@CSS ", "@JS "})
        EXPECT_EQ(page.find(ailleurs), std::string::npos) << ailleurs;
}

TEST(Page, aucunChevronDansLesDonnees) {
    EXPECT_EQ(dansLaPage(""), "");
    EXPECT_EQ(dansLaPage("{\"nom\":\"lot.vse\"}"), "{\"nom\":\"lot.vse\"}");
    EXPECT_EQ(dansLaPage("\"</script><!--\""), "\"\\u003C/script>\\u003C!--\"");
    EXPECT_EQ(dansLaPage("<") + dansLaPage("<"), dansLaPage("<<"));
}

TEST(Page, unOctetParCaractere) {
    EXPECT_EQ(dansLaPage("\xC3\xA9\xC3\xBF"), "\xC3\xA9\xC3\xBF");    // U+00E9, U+00FF
    EXPECT_EQ(dansLaPage("\xC4\x80\xE2\x80\x99"), "\\u0100\\u2019");  // U+0100, U+2019
    EXPECT_EQ(dansLaPage("\xF0\x9F\x90\x84"
                         "a"),
              "\\uD83D\\uDC04"
              "a");                                         // U+1F404
    EXPECT_EQ(dansLaPage("\xE2\x80<"), "\xE2\x80\\u003C");  // no UTF-8: kept
    EXPECT_EQ(dansLaPage("\x80\xFF\xC3"), "\x80\xFF\xC3");
    EXPECT_EQ(dansLaPage("\xF4"), "\xF4");
}

}  // namespace
}  // namespace quilvane
