# quilvane-lot, included where its libraries have been found.
find_package(Threads REQUIRED)
add_library(quilvane_lot STATIC
  src/lot/affichage.cpp
  src/lot/archive.cpp
  src/lot/casier.cpp
  src/lot/contenu.cpp
  src/lot/depot.cpp
  src/lot/disque.cpp
  src/lot/empreinte.cpp
  src/lot/file.cpp
  src/lot/journal.cpp
  src/lot/jugement.cpp
  src/lot/lot.cpp
  src/lot/metriques.cpp
  src/lot/noms.cpp
  src/lot/options.cpp
  src/lot/processus.cpp
  src/lot/rapports.cpp
  src/lot/textes.cpp
  src/lot/traitement.cpp
  src/lot/verdict.cpp)
target_include_directories(quilvane_lot PUBLIC src)
target_include_directories(quilvane_lot SYSTEM PUBLIC ${QUILVANE_RAPIDJSON} ${QUILVANE_NETTLE})
target_link_libraries(quilvane_lot PUBLIC quilvane_options Threads::Threads ${QUILVANE_LIBNETTLE})
# g++ 12 sees overlaps in "a" + std::string() that are not there (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(quilvane_lot PUBLIC -Wno-restrict)
endif()
add_executable(quilvane-lot src/lot/main.cpp)
target_compile_definitions(quilvane-lot PRIVATE QUILVANE_VERSION="${PROJECT_VERSION}")
target_link_libraries(quilvane-lot PRIVATE quilvane_lot)
