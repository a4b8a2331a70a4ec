# add_virtual_board(TARGET): the skeleton's sources with a queue, and a graphics driver by which DirectFB waits for it.
include(${CMAKE_CURRENT_LIST_DIR}/../skeleton/board.cmake)
set(BOARD_VIRTUAL ${CMAKE_CURRENT_LIST_DIR})

function(add_virtual_board target)
  add_board(${target} ${BOARD_VIRTUAL}/driver.c ${BOARD_VIRTUAL}/queue.cpp)
  target_include_directories(${target} PRIVATE ${BOARD_VIRTUAL})
  target_compile_definitions(${target} PRIVATE BOARD_ACCESSOR=CSAID_GPU)
  target_link_libraries(${target} PRIVATE Threads::Threads)
endfunction()
