# The pictures of vehicles, drawn at build time: the built-in ones as resources under :/stock, the thumbnails of the
# demonstration in build/thumbnails. To be included where the resources' target stands.
file(GLOB vehicle_sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/assets/vehicles/*.cpp"
     "${CMAKE_SOURCE_DIR}/assets/vehicles/*.h")
add_executable(draw_vehicles ${vehicle_sources})
set_target_properties(draw_vehicles PROPERTIES AUTOMOC OFF RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/assets")
target_link_libraries(draw_vehicles PRIVATE Qt6::Gui)

set(stock_folder "${CMAKE_BINARY_DIR}/assets/stock")
set(thumbnail_folder "${CMAKE_BINARY_DIR}/thumbnails")
set(stock_pictures "")
foreach(name 5000 5001 5002 5003 5004 5005 NO_MATERIEL)
  list(APPEND stock_pictures "${stock_folder}/${name}.bmp")
endforeach()
add_custom_command(
  OUTPUT ${stock_pictures}
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${stock_folder}" "${thumbnail_folder}"
  COMMAND draw_vehicles "${stock_folder}" "${thumbnail_folder}"
  DEPENDS draw_vehicles
  COMMENT "Drawing the vehicles"
  VERBATIM)

function(add_stock_pictures target)
  qt_add_resources(${target} zandor_stock PREFIX "/stock" BASE "${stock_folder}" FILES ${stock_pictures})
endfunction()
