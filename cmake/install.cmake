# What an installation holds: headers, both libraries, pkg-config and CMake packages, the programs, their manual pages and
# the examples. Its components are for "cmake --install build --component NAME".
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/dtkhddvd)

set(programs "")
if(TARGET dtk_demo)
  set(programs dtk_bench dtk_demo dtk_replay dtk_trace test_dtkhd zuvo_check)
endif()

# An rpath that CMake is to change at the installation ends with an empty entry, which is the current folder. So these
# files are linked with rpaths that serve in both places.
set_target_properties(dtkhddvd PROPERTIES INSTALL_RPATH $ORIGIN)
set_target_properties(dtkhddvd ${programs} PROPERTIES BUILD_WITH_INSTALL_RPATH ON)

install(TARGETS dtkhddvd EXPORT dtkhddvd
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/dtkhddvd)
# A board's library that is not built here is there already, with its header.
get_target_property(is_there zuvo IMPORTED)
if(NOT is_there)
  set_target_properties(zuvo PROPERTIES BUILD_WITH_INSTALL_RPATH ON)
  install(TARGETS zuvo EXPORT dtkhddvd
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT platform NAMELINK_COMPONENT development
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/dtkhddvd)
  install(FILES platform/include/zuvo.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/dtkhddvd
    COMPONENT development)
endif()
# Loaded by libzuvo from the folder beside it, where there is a display.
if(TARGET zuvo_window)
  install(TARGETS zuvo_window LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/zuvo COMPONENT window)
endif()
if(programs)
  set_target_properties(${programs} PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR};$ORIGIN")
  install(TARGETS ${programs} RUNTIME COMPONENT tools)
  # dtk_trace puts it before the libraries of other programs.
  install(TARGETS dtk_recorder LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/dtkhddvd COMPONENT tools)
  install(DIRECTORY docs/man/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools FILES_MATCHING PATTERN *.1)
endif()
install(FILES include/dtkhddvd.h include/dtkhddvd.hpp
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/dtkhddvd COMPONENT development)
set(example_dir ${CMAKE_INSTALL_DOCDIR}/examples)
install(DIRECTORY examples/ DESTINATION ${example_dir} COMPONENT documentation
  FILES_MATCHING PATTERN hello.c PATTERN df_*.[ch] PATTERN screen.* PATTERN dtkhddvd_cffi.py)
install(PROGRAMS examples/df_rosette.py DESTINATION ${example_dir} COMPONENT documentation)
install(DIRECTORY docs/man/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man3 COMPONENT development FILES_MATCHING PATTERN *.3)

install(EXPORT dtkhddvd NAMESPACE dtkhddvd:: FILE dtkhddvdTargets.cmake
  DESTINATION ${package_dir} COMPONENT development)
configure_package_config_file(cmake/dtkhddvdConfig.cmake.in dtkhddvdConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(dtkhddvdConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/dtkhddvdConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/dtkhddvdConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT development)

# The prefix is told from the file's own place, because installing may choose another one than configuring.
file(RELATIVE_PATH prefix_from_pkgconfig /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig ${prefix_from_pkgconfig})
configure_file(cmake/dtkhddvd.pc.in dtkhddvd.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/dtkhddvd.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
