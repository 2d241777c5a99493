# Makes a shared library of this package the way every layer is made: the
# alias ipconfig_readwrite::<target>, an export header <target>_export.h,
# the package version, an rpath beside its own, the given source directories
# and the export header's directory on the include path, and an install into
# the package's export set. The caller installs its own headers.
function(ipconfig_package_library target)
  add_library(ipconfig_readwrite::${target} ALIAS ${target})
  generate_export_header(${target} BASE_NAME ${target})
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} INSTALL_RPATH "$ORIGIN")
  foreach(dir IN LISTS ARGN)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${dir}>)
  endforeach()
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}>
    $<INSTALL_INTERFACE:${IPCONFIG_RW_INCLUDE_INSTALL_DIR}>)
  install(TARGETS ${target} EXPORT ipconfig_readwriteTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} NAMELINK_COMPONENT Development)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}_export.h
    DESTINATION ${IPCONFIG_RW_INCLUDE_INSTALL_DIR})
endfunction()
