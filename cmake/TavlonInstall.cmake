# What is installed, in three components: runtime (the shared libraries), development (what a host is built with) and
# gallery (the program and its data, gallery/CMakeLists.txt). The tree may be moved as a whole.

include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Tavlon)

set(libraries Tavlon TavlonFramework)
if(NOT WIN32)
  list(APPEND libraries TavlonPlatform)
endif()
install(TARGETS ${libraries} EXPORT TavlonTargets
        RUNTIME COMPONENT runtime
        LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
        ARCHIVE COMPONENT development)
install(TARGETS TavlonPicture EXPORT TavlonPictureTargets ARCHIVE COMPONENT development)
install(EXPORT TavlonTargets NAMESPACE Tavlon:: DESTINATION ${package_dir} COMPONENT development)
install(EXPORT TavlonPictureTargets NAMESPACE Tavlon:: DESTINATION ${package_dir} COMPONENT development)

install(DIRECTORY src/wrappers/include/tavlon platform/framework/include/tavlon platform/picture/include/tavlon
        TYPE INCLUDE COMPONENT development FILES_MATCHING PATTERN *.h)
if(WIN32)
  install(FILES ${TAVLON_RUNTIME_DLLS} TYPE BIN COMPONENT runtime)
  # Stripped as our own files are when they are packed: nine tenths of them are symbols.
  foreach(dll ${TAVLON_RUNTIME_DLLS})
    get_filename_component(name ${dll} NAME)
    install(CODE "if(CMAKE_INSTALL_DO_STRIP)
      execute_process(COMMAND ${CMAKE_STRIP} \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/${name}\"
                      COMMAND_ERROR_IS_FATAL ANY)
    endif()" COMPONENT runtime)
  endforeach()
else()
  install(DIRECTORY platform/win32/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tavlon/win32 COMPONENT development
          FILES_MATCHING PATTERN *.h)
endif()

# The CMake package.
string(JOIN " " TAVLON_GBK_FLAGS ${TAVLON_GBK_OPTIONS})
configure_package_config_file(cmake/TavlonConfig.cmake.in ${CMAKE_BINARY_DIR}/TavlonConfig.cmake
                              INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO)
# Below 1.0 every minor version may break hosts.
write_basic_package_version_file(${CMAKE_BINARY_DIR}/TavlonConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/TavlonConfig.cmake ${CMAKE_BINARY_DIR}/TavlonConfigVersion.cmake
        DESTINATION ${package_dir} COMPONENT development)

# The pkg-config files, which find the tree from where they lie.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH TAVLON_PC_TO_PREFIX /${pkgconfig_dir} /)
string(REGEX REPLACE "/$" "" TAVLON_PC_TO_PREFIX "${TAVLON_PC_TO_PREFIX}")
set(TAVLON_PC_CFLAGS "-I\${includedir} -I\${includedir}/tavlon/win32")
set(TAVLON_PC_LIBS -lTavlonPlatform)
set(TAVLON_PC_PICTURE_REQUIRES "Requires: libpng")
set(TAVLON_PC_PICTURE_LIBS "")
if(WIN32)
  list(TRANSFORM TAVLON_WINDOWS_DEFINITIONS PREPEND -D OUTPUT_VARIABLE definitions)
  string(JOIN " " TAVLON_PC_CFLAGS "-I\${includedir}" ${definitions})
  list(TRANSFORM TAVLON_WINDOWS_LIBRARIES PREPEND -l OUTPUT_VARIABLE system_libraries)
  string(JOIN " " TAVLON_PC_LIBS ${system_libraries})
  set(TAVLON_PC_PICTURE_REQUIRES "")
  set(TAVLON_PC_PICTURE_LIBS " -lgdiplus")
endif()
foreach(name tavlon tavlon-picture tavlon-gbk-literals)
  configure_file(cmake/${name}.pc.in ${CMAKE_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/${name}.pc DESTINATION ${pkgconfig_dir} COMPONENT development)
endforeach()

include(cmake/TavlonPackages.cmake)
