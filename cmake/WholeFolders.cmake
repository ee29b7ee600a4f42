# With SONARO_WHOLE_FOLDERS each folder of a target is compiled as one file, which halves the time of a build from
# nothing (./test asks for it then). Names without linkage are therefore unique within a folder.
option(SONARO_WHOLE_FOLDERS "Compile each folder as one file" OFF)

function(sonaro_whole_folders target)
  if(NOT SONARO_WHOLE_FOLDERS)
    return()
  endif()
  get_target_property(files ${target} SOURCES)
  foreach(file IN LISTS files)
    cmake_path(ABSOLUTE_PATH file OUTPUT_VARIABLE place)
    cmake_path(GET place PARENT_PATH folder)
    cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${CMAKE_SOURCE_DIR})
    string(REPLACE / _ group ${folder})
    set_source_files_properties(${file} PROPERTIES UNITY_GROUP ${group})
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()
