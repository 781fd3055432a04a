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
    const std::string page = std::string(pageDebut) + std::string(pageRapport) + std::string(pageCatalogue) + std::string(pageFin);
    EXPECT_NE(page.find("default-src 'none'; style-src 'sha256-"), std::string::npos);
    for (const char* ailleurs : {"src=\"", "<link rel=\"stylesheet", "@import", "url(", "https://", "@CSP@", "@CSS ", "@JS "})
        EXPECT_EQ(page.find(ailleurs), std::string::npos) << ailleurs;
}

TEST(Page, aucunChevronDansLesDonnees) {
    EXPECT_EQ(dansLaPage(""), "");
    EXPECT_EQ(dansLaPage("{\"nom\":\"lot.vse\"}"), "{\"nom\":\"lot.vse\"}");
    EXPECT_EQ(dansLaPage("\"</script><!--\""), "\"\\u003C/script>\\u003C!--\"");
    EXPECT_EQ(dansLaPage("<") + dansLaPage("<"), dansLaPage("<<"));
}

}  // namespace
}  // namespace quilvane
