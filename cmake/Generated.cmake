# What one place says and several files need: the version, and the templates that the package's files and those that
# the program writes for its user are both made of.
set(TITLE_VERSION "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}${PROJECT_VERSION_PATCH}")
set(generated "${CMAKE_BINARY_DIR}/generated")
configure_file(src/frame/version.h.in "${generated}/frame/version.h" @ONLY)

file(READ packaging/zandor.desktop.in DESKTOP_TEMPLATE)
file(READ packaging/zandor.xml.in MIME_TEMPLATE)
configure_file(src/platform/desktop_templates.h.in "${generated}/platform/desktop_templates.h" @ONLY)

foreach(page zandor.1 zandor-cli.1)
  configure_file(packaging/man/${page}.in "${generated}/${page}" @ONLY)
endforeach()
configure_file(packaging/zandor.metainfo.xml.in "${generated}/zandor.metainfo.xml" @ONLY)

# fill(TEMPLATE NAMES_FILE): one file of the package, in all languages.
function(fill template names_file)
  file(STRINGS packaging/${names_file} lines ENCODING UTF-8)
  list(JOIN lines "\n" NAMES)
  configure_file(packaging/${template}.in "${generated}/${template}" @ONLY)
endfunction()
set(EXEC zandor)
set(TRY_EXEC zandor)
set(MARK "# installed with the package")
fill(zandor.desktop desktop-names.txt)
set(MARK "Copyright 2026 the Zandor developers")
fill(zandor.xml mime-names.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS packaging/zandor.desktop.in packaging/zandor.xml.in
             packaging/desktop-names.txt packaging/mime-names.txt)
