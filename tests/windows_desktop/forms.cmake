# People at the forms of the library: a program that shows them, types and clicks, on a display of its
# own.
rangewerks_tests(windows_desktop com_bridge admin browse errors filesave sheetbuild desktops_win32
  systems_windows rangewerks_interfaces psapi)
target_sources(test_windows_desktop PRIVATE
  "${CMAKE_CURRENT_SOURCE_DIR}/desktops/win32_input.cpp"
  "${CMAKE_CURRENT_SOURCE_DIR}/desktops/win32_person.cpp"
  "${CMAKE_CURRENT_SOURCE_DIR}/desktops/win32_possessions.cpp"
  "${CMAKE_CURRENT_SOURCE_DIR}/windows/server_under_test.cpp"
  "${CMAKE_CURRENT_SOURCE_DIR}/windows/sheet_host_under_test.cpp"
  "${PROJECT_SOURCE_DIR}/desktops/win32/themes.rc")
add_dependencies(test_windows_desktop rangewerks_dll sheethost_dll)
target_compile_definitions(test_windows_desktop PRIVATE
  RANGEWERKS_DLL=L"${root}$<TARGET_FILE:rangewerks_dll>"
  SHEETHOST_DLL=L"${root}$<TARGET_FILE:sheethost_dll>")
if(CMAKE_CROSSCOMPILING)
  get_target_property(desktop test_desktops CROSSCOMPILING_EMULATOR)
  set_target_properties(test_windows_desktop PROPERTIES CROSSCOMPILING_EMULATOR "${desktop}")
  set_tests_properties(windows_desktop PROPERTIES
    TIMEOUT 900 ENVIRONMENT WINE_DESKTOP_SECONDS=890)
endif()

# tools/pictures-of-forms runs it.
add_executable(pictures_of_forms
  windows_desktop/pictures/pictures_of_forms.cpp windows_desktop/shown_forms.cpp
  "${PROJECT_SOURCE_DIR}/desktops/win32/themes.rc")
target_include_directories(pictures_of_forms PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
target_link_libraries(pictures_of_forms PRIVATE
  admin browse errors filesave sheetbuild desktops_win32 strict)
