# The clients of the two DLLs: C++ programs, which load them from where they were built. The contract
# of hosts is held by what a COM caller gets as well.
rangewerks_tests(windows com_server desktops_unattended rangelist sheetbuild browse rangewerks_interfaces hosts_workbook systems_windows)
file(GLOB contract CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/hosts/*_contract_test.cpp")
target_sources(test_windows PRIVATE ${contract})
add_dependencies(test_windows rangewerks_dll sheethost_dll posting_servers)
set(root "")
if(CMAKE_CROSSCOMPILING)
  set(root "Z:")  # where Wine shows this system's files
endif()
target_compile_definitions(test_windows PRIVATE
  RANGEWERKS_MANIFESTS="${root}${PROJECT_SOURCE_DIR}/com"
  RANGEWERKS_SAMPLE_PROGRAM="${root}$<TARGET_FILE_DIR:posting>"
  RANGEWERKS_SCRIPTS="${root}${CMAKE_CURRENT_SOURCE_DIR}/windows"
  RANGEWERKS_DLL=L"${root}$<TARGET_FILE:rangewerks_dll>"
  SHEETHOST_DLL=L"${root}$<TARGET_FILE:sheethost_dll>")

# There is no display to show a form on.
set_tests_properties(windows PROPERTIES ENVIRONMENT RANGEWERKS_UNATTENDED=1)

# And scripts, each a test of its own. The runner finds the DLLs of this build by its folder.
if(CMAKE_CROSSCOMPILING)
  file(GLOB scripts CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/windows/*.vbs")
  set(on_a_desktop colour_pallet)  # what they call makes windows
  foreach(script ${scripts})
    cmake_path(GET script STEM name)
    set(on "")
    if(name IN_LIST on_a_desktop)
      set(on --desktop)
    endif()
    add_test(NAME windows_${name}
      COMMAND "${PROJECT_SOURCE_DIR}/tools/wine-test-script" ${on} "${script}")
    set_tests_properties(windows_${name} PROPERTIES
      ENVIRONMENT "RANGEWERKS_BUILD=${PROJECT_BINARY_DIR}" TIMEOUT 180)
  endforeach()

  # The samples print the same, whatever they are written in.
  set(samples "${PROJECT_SOURCE_DIR}/examples/windows")
  set(prints "${PROJECT_SOURCE_DIR}/tools/wine-prints" "${samples}/posting.txt")
  add_test(NAME windows_sample_vbs
    COMMAND ${prints} "${PROJECT_SOURCE_DIR}/tools/wine-cscript" "${samples}/posting.vbs")
  add_test(NAME windows_sample_cpp
    COMMAND ${prints} "${PROJECT_SOURCE_DIR}/tools/wine-run" "$<TARGET_FILE:posting>")
  set_tests_properties(windows_sample_vbs windows_sample_cpp PROPERTIES
    ENVIRONMENT "RANGEWERKS_BUILD=${PROJECT_BINARY_DIR}" TIMEOUT 180)
endif()

# A container of controls, on a display of its own.
rangewerks_tests(control com_bridge forms rangewerks_interfaces gdi32)
target_sources(test_control PRIVATE
  "${CMAKE_CURRENT_SOURCE_DIR}/desktops/win32_input.cpp"
  "${CMAKE_CURRENT_SOURCE_DIR}/desktops/win32_person.cpp")
target_compile_definitions(test_control PRIVATE
  RANGEWERKS_SAMPLE_PROGRAM="${root}$<TARGET_FILE_DIR:posting>")
add_dependencies(test_control posting_servers)
if(CMAKE_CROSSCOMPILING)
  get_target_property(desktop test_desktops CROSSCOMPILING_EMULATOR)
  set_target_properties(test_control PROPERTIES CROSSCOMPILING_EMULATOR "${desktop}")
endif()
