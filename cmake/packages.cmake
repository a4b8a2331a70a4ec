# Debian packages of the installation's components, made by CPack. What Debian wants in each of them and no installation
# needs is added by debian_files.cmake when the files have been put together.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME dtkhddvd)
set(CPACK_PACKAGE_CONTACT "dtkhddvd maintainers <maintainers@dtkhddvd.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_COMPONENTS_ALL library platform development tools documentation)
if(TARGET zuvo_window)
  list(APPEND CPACK_COMPONENTS_ALL window)
endif()
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian_files.cmake)
set(CPACK_DTKHDDVD_SOURCE_DIR ${PROJECT_SOURCE_DIR})
set(CPACK_DTKHDDVD_LIBDIR ${CMAKE_INSTALL_LIBDIR})

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The libraries depend on each other, of which no package knows yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR})

# describe_package(COMPONENT NAME SECTION SUMMARY DESCRIPTION DEPENDENCIES)
macro(describe_package component name section summary description dependencies)
  string(TOUPPER ${component} prefix)
  set(CPACK_DEBIAN_${prefix}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${prefix}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${prefix}_DESCRIPTION "${summary}\n${description}")
  set(CPACK_DEBIAN_${prefix}_PACKAGE_DEPENDS "${dependencies}")
endmacro()

set(toolkit_text "The toolkit draws lines, rectangles, polygons and ellipses, filled with a
colour or a texture and outlined with pens of any four-cornered shape. It
draws in software or hands every shape to the platform's drawing engine.")
set(same_version "(= ${PROJECT_VERSION})")

describe_package(library libdtkhddvd1 libs "2-D drawing toolkit for DirectFB - library"
  "${toolkit_text}" "libzuvo-hosted1 | libzuvo1")
describe_package(platform libzuvo-hosted1 libs "2-D drawing toolkit for DirectFB - hosted platform"
  "${toolkit_text}
.
This is its platform library for desktops and build machines, with a drawing
engine and a DirectFB graphics driver that run on the CPU." "")
describe_package(window libzuvo-hosted1-window libs "2-D drawing toolkit for DirectFB - window of the hosted platform"
  "${toolkit_text}
.
This shows what DirectFB draws in a window, on X11 and Wayland desktops. It is
loaded only there: without it nothing is shown." "libzuvo-hosted1 ${same_version}")
describe_package(development libdtkhddvd-dev libdevel "2-D drawing toolkit for DirectFB - development files"
  "${toolkit_text}
.
These are its headers, with what pkg-config and CMake need to find it."
  "libdtkhddvd1 ${same_version}, libzuvo-hosted1 ${same_version}, libdirectfb-dev")
describe_package(tools dtkhddvd-tools graphics "2-D drawing toolkit for DirectFB - demonstration and benchmarks"
  "${toolkit_text}
.
These are a demonstration, a benchmark of its primitives, a program that
examines platforms, and the library's
own test program." "libdtkhddvd1 ${same_version}, libzuvo-hosted1 ${same_version}")
describe_package(documentation dtkhddvd-doc doc "2-D drawing toolkit for DirectFB - guide and examples"
  "${toolkit_text}
.
These are its guide and examples in C and Python." "")

set(CPACK_DEBIAN_PLATFORM_PACKAGE_RECOMMENDS libzuvo-hosted1-window)
# On Wayland SDL draws by OpenGL, and libdecor draws the window's frame.
set(CPACK_DEBIAN_WINDOW_PACKAGE_RECOMMENDS "libgl1-mesa-dri, libdecor-0-plugin-1-cairo")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_PLATFORM_PACKAGE_PROVIDES libzuvo1)

# How other packages depend on the libraries, and what makes the loader know them.
function(add_library_control component library package)
  string(TOUPPER ${component} prefix)
  set(folder ${CMAKE_BINARY_DIR}/control/${component})
  file(WRITE ${folder}/shlibs "${library} ${PROJECT_VERSION_MAJOR} ${package} (>= ${PROJECT_VERSION_MAJOR}.0)\n")
  file(WRITE ${folder}/triggers "activate-noawait ldconfig\n")
  set(CPACK_DEBIAN_${prefix}_PACKAGE_CONTROL_EXTRA ${folder}/shlibs ${folder}/triggers PARENT_SCOPE)
endfunction()
add_library_control(library libdtkhddvd libdtkhddvd1)
add_library_control(platform libzuvo libzuvo-hosted1)

# The reference pages, where ./run docs has made them.
if(DTKHDDVD_HTML)
  install(DIRECTORY ${DTKHDDVD_HTML}/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/html COMPONENT documentation)
endif()
include(CPack)
