# Compiles fonts into a target as the folder `prefix` of its resources, under another family (see fonts/main.cpp). They
# are not compressed, so that they are read where they lie.
#
#   add_fonts(Reports /fonts "Inter" "Audit" Inter-Regular.otf …)
function(add_fonts target prefix family new_family)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/prepared-fonts")
  file(MAKE_DIRECTORY "${folder}")
  set(prepared)
  foreach(font IN LISTS ARGN)
    get_filename_component(name "${font}" NAME)
    add_custom_command(OUTPUT "${folder}/${name}"
      COMMAND prepare-font "${font}" "${family}" "${new_family}" "${folder}/${name}"
      DEPENDS prepare-font "${font}" VERBATIM)
    list(APPEND prepared "${folder}/${name}")
  endforeach()
  qt_add_resources(${target} ${target}-fonts PREFIX "${prefix}" BASE "${folder}" OPTIONS --no-compress
    FILES ${prepared})
endfunction()
