# The pictures of lists, menus, the strip and the splash, drawn at build time: resources under :/art, and the desktop's icons in
# build/assets/hicolor. To be included where the resources' target stands.
file(GLOB glyph_sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/assets/glyphs/*.cpp" "${CMAKE_SOURCE_DIR}/assets/glyphs/*.h")
add_executable(draw_glyphs ${glyph_sources})
set_target_properties(draw_glyphs PROPERTIES AUTOMOC OFF RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/assets")
target_link_libraries(draw_glyphs PRIVATE Qt6::Gui)

set(glyph_names ROUTE_YES ROUTE_NO imgAUTO imgBAR imgCHAIN imgHYDRO imgNO_COMPATIBLE discard)
foreach(number RANGE 1 6)
  list(APPEND glyph_names flag-${number})
endforeach()
foreach(number 2 3 4 5 6 7 8 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28)
  list(APPEND glyph_names list-${number})
endforeach()
set(glyph_pictures "${CMAKE_BINARY_DIR}/assets/art/zandor.png" "${CMAKE_BINARY_DIR}/assets/art/splash.png")
foreach(name ${glyph_names})
  list(APPEND glyph_pictures "${CMAKE_BINARY_DIR}/assets/art/${name}.png" "${CMAKE_BINARY_DIR}/assets/art/${name}@2x.png")
endforeach()
add_custom_command(
  OUTPUT ${glyph_pictures}
  COMMAND draw_glyphs "${CMAKE_BINARY_DIR}/assets"
  DEPENDS draw_glyphs
  COMMENT "Drawing the icons"
  VERBATIM)

function(add_glyphs target)
  qt_add_resources(${target} zandor_glyphs PREFIX "/art" BASE "${CMAKE_BINARY_DIR}/assets/art" FILES ${glyph_pictures})
endfunction()
