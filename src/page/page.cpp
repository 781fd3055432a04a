#include "page/page.h"

namespace quilvane {

std::string dansLaPage(std::string_view json) {
    std::string sortie;
    sortie.reserve(json.size());
    for (char c : json) {
        if (c == '<')
            sortie += "\\u003C";
        else
            sortie += c;
    }
    return sortie;
}

}  // namespace quilvane
