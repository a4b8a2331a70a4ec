# Adds to each package what Debian's policy asks for: who may use it, what changed, and compressed manual pages.
find_program(GZIP gzip REQUIRED)
set(templates ${CPACK_DTKHDDVD_SOURCE_DIR}/cmake/debian)

function(compress)
  execute_process(COMMAND ${GZIP} -9nf ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Sets the copyright's holder, too. The indentation is that of Debian's machine-readable copyright files, where a full stop
# is a line without text.
function(read_licence result)
  file(READ ${CPACK_DTKHDDVD_SOURCE_DIR}/LICENSE text)
  string(REGEX MATCH "Copyright \\(c\\) ([^\n]*)" line "${text}")
  set(holder "${CMAKE_MATCH_1}" PARENT_SCOPE)
  string(REGEX REPLACE "^.*\n\n(Permission)" "\\1" text "${text}")
  string(STRIP "${text}" text)
  string(REPLACE "\n" "\n " text "${text}")
  string(REPLACE "\n \n" "\n .\n" text "${text}")
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

function(add_package_files component)
  string(TOUPPER ${component} prefix)
  set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}${CPACK_PACKAGING_INSTALL_PREFIX})
  set(folder ${root}/share/doc/${CPACK_DEBIAN_${prefix}_PACKAGE_NAME})
  configure_file(${templates}/copyright.in ${folder}/copyright @ONLY)
  configure_file(${templates}/changelog.in ${folder}/changelog @ONLY)
  compress(${folder}/changelog)

  file(GLOB_RECURSE pages ${root}/share/man/*.[13])
  if(pages)
    compress(${pages})
  endif()
endfunction()

string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
read_licence(licence)
foreach(component ${CPACK_COMPONENTS_ALL})
  add_package_files(${component})
endforeach()
