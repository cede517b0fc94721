# One target for each folder, so that a file which includes from a folder that its own doesn't
# depend on fails to build: a target sees the headers of its own folder and of the targets that it
# names, and no others.
#
#   rangewerks_folder(src/model automation errors)
#
# makes the static library `model` from src/model/*.cpp. Its headers are included as "model/x.h".

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(strict INTERFACE)
target_compile_options(strict INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# GCC 12 sees overlaps in std::string's own joining of texts that can't be (its bug 105651).
target_compile_options(strict INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

# The include folder of a target holds one link, to the target's own folder.
function(rangewerks_include_folder target folder shown_as)
  set(root "${PROJECT_BINARY_DIR}/include/${target}")
  cmake_path(GET shown_as PARENT_PATH above)
  file(MAKE_DIRECTORY "${root}/${above}")
  file(CREATE_LINK "${PROJECT_SOURCE_DIR}/${folder}" "${root}/${shown_as}" SYMBOLIC)
  target_include_directories(${target} PUBLIC "${root}")
endfunction()

function(rangewerks_folder folder)
  cmake_path(GET folder FILENAME name)
  string(REGEX REPLACE "^src/" "" shown_as "${folder}")
  string(REPLACE "/" "_" target "${shown_as}")
  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.cpp")
  add_library(${target} STATIC ${sources})
  target_link_libraries(${target} PUBLIC ${ARGN} PRIVATE strict)
  rangewerks_include_folder(${target} ${folder} ${shown_as})
endfunction()
