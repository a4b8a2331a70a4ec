# add_board(TARGET SOURCE...): a libzuvo of the skeleton's sources and of what makes a board of them.
include(${PROJECT_SOURCE_DIR}/platform/directfb/variant.cmake)
set(BOARD_SKELETON ${CMAKE_CURRENT_LIST_DIR})

function(add_board target)
  set(sources draw.cpp engine.cpp outlines.cpp platform.cpp shapes.cpp surfaces.c)
  list(TRANSFORM sources PREPEND ${BOARD_SKELETON}/)
  add_library(${target} SHARED ${sources} ${ARGN})
  target_include_directories(${target}
    PRIVATE ${BOARD_SKELETON} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/platform/include>)
  target_link_libraries(${target} PUBLIC PkgConfig::DIRECTFB PRIVATE dtkhddvd_options zuvo_directfb_internal)
  target_link_options(${target} PRIVATE
    -Wl,--version-script=${BOARD_SKELETON}/zuvo.map -Wl,-z,defs -Wl,-z,nodelete -Wl,--as-needed)
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME zuvo LINK_DEPENDS ${BOARD_SKELETON}/zuvo.map
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
endfunction()
