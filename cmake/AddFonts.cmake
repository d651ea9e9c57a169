# Compiles fonts into a target as the folder `prefix` of its resources, under another family (see fonts/prepare-font.py).
# They are not compressed, so that they are read where they lie.
#
#   add_fonts(Reports /fonts "Tavelo Deskrig Text" /usr/share/fonts/Inter-Regular.otf …)
function(add_fonts target prefix family)
  find_program(PYTHON_WITH_FONTTOOLS python3 VALIDATOR imports_fonttools
    HINTS /opt/homebrew/opt/fonttools/libexec/bin /usr/local/opt/fonttools/libexec/bin)
  if(NOT PYTHON_WITH_FONTTOOLS)
    message(FATAL_ERROR
      "fontTools is missing; on Debian it comes with python3-fonttools, on a Mac with Homebrew's fonttools.")
  endif()
  set(script "${PROJECT_SOURCE_DIR}/fonts/prepare-font.py")
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/prepared-fonts")
  file(MAKE_DIRECTORY "${folder}")
  set(prepared)
  foreach(font IN LISTS ARGN)
    cmake_path(GET font STEM name)
    add_custom_command(OUTPUT "${folder}/${name}.ttf"
      COMMAND "${PYTHON_WITH_FONTTOOLS}" "${script}" "${font}" "${family}" "${folder}/${name}.ttf"
      DEPENDS "${script}" "${font}" VERBATIM)
    list(APPEND prepared "${folder}/${name}.ttf")
  endforeach()
  qt_add_resources(${target} ${target}-fonts PREFIX "${prefix}" BASE "${folder}" OPTIONS --no-compress
    FILES ${prepared})
endfunction()

function(imports_fonttools result python)
  execute_process(COMMAND "${python}" -c "import fontTools" RESULT_VARIABLE status OUTPUT_QUIET ERROR_QUIET)
  if(status)
    set(${result} FALSE PARENT_SCOPE)
  endif()
endfunction()
