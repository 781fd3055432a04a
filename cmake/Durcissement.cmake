# Hardening, in every build; what the compiler does not have is left out.
include(CheckCXXCompilerFlag)
set(durcissement -fstack-protector-strong -Werror=format-security)
foreach(drapeau -fstack-clash-protection -fcf-protection)
  string(MAKE_C_IDENTIFIER "QUILVANE_A${drapeau}" present)
  check_cxx_compiler_flag(${drapeau} ${present})
  if(${present})
    list(APPEND durcissement ${drapeau})
  endif()
endforeach()
# Checked calls need an optimising compiler and hide faults from the sanitizers.
if(NOT QUILVANE_SANITIZE)
  list(APPEND durcissement
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE>
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=2>)
endif()
foreach(cible quilvane_noyau quilvane_produit quilvane_catalogue quilvane_page quilvane_rapport quilvane_aide
  quilvane_lot ${QUILVANE_PROGRAMMES})
  if(TARGET ${cible})
    target_compile_options(${cible} PRIVATE ${durcissement})
    # What is linked into programs alone needs no way around its own functions
    # and variables: a tenth fewer instructions than code for shared libraries.
    get_target_property(genre ${cible} TYPE)
    if(genre STREQUAL "STATIC_LIBRARY")
      target_compile_options(${cible} PRIVATE -fPIE)
    endif()
  endif()
endforeach()
foreach(programme ${QUILVANE_PROGRAMMES})
  target_link_options(${programme} PRIVATE -pie -Wl,-z,relro,-z,now)
endforeach()
