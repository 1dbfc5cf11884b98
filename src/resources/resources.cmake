# Puts the images, cursor and menu of this folder into a library: compiled into the module on Windows, and natively as
# the same compiled resource file in read-only data (module_image.h hands it out).

set(TAVLON_RESOURCES_DIR ${CMAKE_CURRENT_LIST_DIR})
file(GLOB TAVLON_RESOURCE_FILES CONFIGURE_DEPENDS
     ${TAVLON_RESOURCES_DIR}/*.bmp ${TAVLON_RESOURCES_DIR}/*.cur ${TAVLON_RESOURCES_DIR}/resource.h)
if(NOT WIN32)
  enable_language(ASM)
  find_program(TAVLON_WINDRES NAMES x86_64-w64-mingw32-windres REQUIRED)
endif()

# The resource and assembler sources are compiled apart from the target, whose C++ options they do not understand.
function(tavlon_embed_resources target)
  set(script ${TAVLON_RESOURCES_DIR}/tavlon.rc)
  if(WIN32)
    set_source_files_properties(${script} PROPERTIES OBJECT_DEPENDS "${TAVLON_RESOURCE_FILES}")
    add_library(${target}_resources OBJECT ${script})
  else()
    set(compiled ${CMAKE_CURRENT_BINARY_DIR}/tavlon.res)
    add_custom_command(
      OUTPUT ${compiled}
      COMMAND ${TAVLON_WINDRES} -c 65001 -O res -I ${TAVLON_RESOURCES_DIR} ${script} ${compiled}
      DEPENDS ${script} ${TAVLON_RESOURCE_FILES}
      COMMENT "Compiling resources" VERBATIM)
    set(embed ${TAVLON_RESOURCES_DIR}/embed_resources.S)
    set_source_files_properties(${embed} PROPERTIES OBJECT_DEPENDS ${compiled})
    add_library(${target}_resources OBJECT ${embed} ${compiled})
    target_compile_definitions(${target}_resources PRIVATE TAVLON_RES_FILE="${compiled}")
    target_sources(${target} PRIVATE ${TAVLON_RESOURCES_DIR}/module_image.cpp)
  endif()
  target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}_resources>)
  target_include_directories(${target} PRIVATE ${TAVLON_RESOURCES_DIR})
endfunction()
