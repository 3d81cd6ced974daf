# What "cmake --install" puts where, by the folders of GNU: programs, icons, desktop entries, manual
# pages, completion, manual, example benches and licence.
include(GNUInstallDirs)
set(doc "${CMAKE_INSTALL_DATAROOTDIR}/doc/mortane")
set(packaging "${PROJECT_SOURCE_DIR}/packaging")
set(made "${PROJECT_BINARY_DIR}/packaging")
file(MAKE_DIRECTORY "${made}")
set(made_files "")

install(TARGETS mortane sadrel mortanectl RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

# The icons in the desktop's usual sizes, each from the drawing that its windows show.
find_program(RSVG_CONVERT rsvg-convert)
if(NOT RSVG_CONVERT)
  message(STATUS "rsvg-convert is missing: only scalable icons are installed")
endif()
foreach(icon mortane=emblem sadrel=checklist)
  string(REGEX REPLACE "=.*" "" program "${icon}")
  string(REGEX REPLACE ".*=" "" drawing "${icon}")
  set(source "${PROJECT_SOURCE_DIR}/src/widgets/resources/icons/${drawing}.svg")
  set(scalable "${made}/${program}.svg")
  add_custom_command(OUTPUT "${scalable}" VERBATIM
    COMMAND "${packaging}/icon-drawing.sh" "${source}" "${scalable}"
    DEPENDS "${packaging}/icon-drawing.sh" "${source}")
  list(APPEND made_files "${scalable}")
  set(icons "${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor")
  install(FILES "${scalable}" DESTINATION "${icons}/scalable/apps")
  if(RSVG_CONVERT)
    foreach(size 16 22 24 32 48 64 128 256)
      set(picture "${made}/${program}-${size}.png")
      add_custom_command(OUTPUT "${picture}" VERBATIM
        COMMAND "${RSVG_CONVERT}" --width ${size} --height ${size} --output "${picture}" "${scalable}"
        DEPENDS "${scalable}")
      list(APPEND made_files "${picture}")
      install(FILES "${picture}" DESTINATION "${icons}/${size}x${size}/apps" RENAME ${program}.png)
    endforeach()
  endif()
endforeach()

install(FILES "${packaging}/linux/mortane.desktop" "${packaging}/linux/sadrel.desktop"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/applications")

# The date of the release is that of the first heading "## VERSION (DATE)" of the change log.
file(STRINGS "${PROJECT_SOURCE_DIR}/CHANGELOG.md" releases REGEX "^## ")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/CHANGELOG.md")
list(GET releases 0 release)
if(NOT release MATCHES "^## ${PROJECT_VERSION} \\(([0-9-]+)\\)$")
  message(FATAL_ERROR "CHANGELOG.md begins with \"${release}\", not with version ${PROJECT_VERSION}")
endif()
set(MORTANE_RELEASE_DATE "${CMAKE_MATCH_1}")
# A catalogue of programs wants an address. None is published yet; this domain is reserved for such
# cases.
set(MORTANE_HOMEPAGE "https://mortane.invalid" CACHE STRING "Where the project shows itself")
# The catalogue of programs takes pictures from the web only.
set(MORTANE_PICTURES_URL "" CACHE STRING "Where the pictures of the manual are published; empty: nowhere")
set(MORTANE_SCREENSHOTS "")
if(MORTANE_PICTURES_URL)
  string(CONCAT MORTANE_SCREENSHOTS "\n  <screenshots>\n    <screenshot type=\"default\">\n"
    "      <caption>The objectives of a nosepiece</caption>\n"
    "      <image>${MORTANE_PICTURES_URL}/objectives.png</image>\n"
    "    </screenshot>\n  </screenshots>")
endif()
configure_file("${packaging}/linux/org.mortane.mortane.metainfo.xml.in"
  "${made}/org.mortane.mortane.metainfo.xml" @ONLY)
install(FILES "${made}/org.mortane.mortane.metainfo.xml"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/metainfo")

find_program(GZIP gzip REQUIRED)
foreach(page linux/mortane.1 linux/sadrel.1 ctl/mortanectl.1)
  cmake_path(GET page FILENAME name)
  set(packed "${made}/${name}.gz")
  add_custom_command(OUTPUT "${packed}" VERBATIM
    COMMAND "${GZIP}" -9nc "${packaging}/${page}" > "${packed}"
    DEPENDS "${packaging}/${page}")
  list(APPEND made_files "${packed}")
  install(FILES "${packed}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endforeach()
install(FILES "${packaging}/ctl/mortanectl.bash" RENAME mortanectl
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions")

install(DIRECTORY "${PROJECT_SOURCE_DIR}/benches"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/mortane" FILES_MATCHING PATTERN "*.xml")
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${doc}" RENAME copyright)

# Built by the target "manual", which needs more than the programs do.
install(DIRECTORY "${PROJECT_BINARY_DIR}/manual" DESTINATION "${doc}" OPTIONAL)

add_custom_target(installed_files ALL DEPENDS ${made_files})
