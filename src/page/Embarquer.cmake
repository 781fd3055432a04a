# Makes the constant parts of the HTML report into a C++ source, without any
# tool but CMake:
#
#   cmake -DDOSSIER=src/page -DMODELE=rapport.html -DSORTIE=page_rapport.cpp -P Embarquer.cmake
#
# Style and script are put into the template, their sha256 digests into its
# content security policy. scripts/empaqueter.py makes the same bytes; a test
# compares them.
cmake_minimum_required(VERSION 3.25)

# hex_en_base64(RESULTAT HEX): the base64 text of the bytes of a digest.
function(hex_en_base64 resultat hex)
  set(alphabet ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/)
  string(LENGTH "${hex}" chiffres)
  math(EXPR manque "(3 - (${chiffres} / 2) % 3) % 3")
  string(REPEAT "00" ${manque} zeros)
  string(APPEND hex "${zeros}")
  string(LENGTH "${hex}" chiffres)
  set(texte "")
  set(place 0)
  while(place LESS chiffres)
    string(SUBSTRING "${hex}" ${place} 6 groupe)
    foreach(decalage 18 12 6 0)
      math(EXPR indice "(0x${groupe} >> ${decalage}) & 63")
      string(SUBSTRING "${alphabet}" ${indice} 1 lettre)
      string(APPEND texte "${lettre}")
    endforeach()
    math(EXPR place "${place} + 6")
  endwhile()
  if(manque GREATER 0)
    string(LENGTH "${texte}" longueur)
    math(EXPR longueur "${longueur} - ${manque}")
    string(SUBSTRING "${texte}" 0 ${longueur} texte)
    string(REPEAT "=" ${manque} egal)
    string(APPEND texte "${egal}")
  endif()
  set(${resultat} "${texte}" PARENT_SCOPE)
endfunction()

# assembler(MARQUE INTERDIT): puts the files that `@MARQUE a b@` names, one
# behind the other, in its place in `page`; sets MARQUE_empreinte.
function(assembler marque interdit)
  string(REGEX MATCH "@${marque} ([^@]*)@" place "${page}")
  string(REPLACE " " ";" fichiers "${CMAKE_MATCH_1}")
  set(contenu "")
  foreach(fichier IN LISTS fichiers)
    file(READ "${DOSSIER}/${fichier}" texte)
    string(APPEND contenu "${texte}")
  endforeach()
  string(FIND "${contenu}" "${interdit}" trouve)
  if(NOT trouve EQUAL -1)
    message(FATAL_ERROR "${fichiers}: the text ${interdit} would end the element")
  endif()
  string(SHA256 hex "${contenu}")
  hex_en_base64(empreinte "${hex}")
  string(REPLACE "${place}" "${contenu}" page "${page}")
  set(page "${page}" PARENT_SCOPE)
  set(${marque}_empreinte "${empreinte}" PARENT_SCOPE)
endfunction()

# declarer(NOM TEXTE): the definition of one part. Bytes, not a literal: a
# literal has a greatest length and its own escapes.
function(declarer nom texte)
  file(WRITE "${SORTIE}.partie" "${texte}")
  file(READ "${SORTIE}.partie" hex HEX)
  file(REMOVE "${SORTIE}.partie")
  string(REGEX REPLACE "(................................)" "\\1\n" hex "${hex}")
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," octets "${hex}")
  string(APPEND source "constexpr char octets${nom}[] = {\n${octets}\n};\n")
  string(APPEND definitions "const std::string_view ${nom}{octets${nom}, sizeof octets${nom}};\n")
  set(source "${source}" PARENT_SCOPE)
  set(definitions "${definitions}" PARENT_SCOPE)
endfunction()

file(READ "${DOSSIER}/${MODELE}" page)
assembler(CSS "</style")
assembler(JS "</script")
string(CONCAT csp "default-src 'none'; style-src 'sha256-${CSS_empreinte}'; script-src 'sha256-${JS_empreinte}'; "
  "img-src data:; base-uri 'none'; form-action 'none'")
string(REPLACE "@CSP@" "${csp}" page "${page}")

# These pieces stand before, between and behind what the guide writes.
set(source "")
set(definitions "")
foreach(partie Debut:@LANGUE@ Rapport:@RAPPORT@ Catalogue:@CATALOGUE@)
  string(REGEX MATCH "^([A-Za-z]+):(@[A-Z]+@)$" _ "${partie}")
  set(nom ${CMAKE_MATCH_1})
  set(marque ${CMAKE_MATCH_2})
  string(FIND "${page}" "${marque}" place)
  if(place EQUAL -1)
    message(FATAL_ERROR "${MODELE}: ${marque} is missing")
  endif()
  string(SUBSTRING "${page}" 0 ${place} avant)
  string(LENGTH "${marque}" longueur)
  math(EXPR place "${place} + ${longueur}")
  string(SUBSTRING "${page}" ${place} -1 page)
  declarer(page${nom} "${avant}")
endforeach()
declarer(pageFin "${page}")
file(WRITE "${SORTIE}" "// Made by src/page/Embarquer.cmake.\n#include \"page/page.h\"\n\nnamespace quilvane {\n\nnamespace {\n\n"
  "${source}\n}  // namespace\n\n${definitions}\n}  // namespace quilvane\n")
