# With SONARO_WHOLE_FOLDERS each folder of a target is compiled as one file, which halves the time of a build from
# nothing (./test asks for it then). Names without linkage are therefore unique within a folder.
option(SONARO_WHOLE_FOLDERS "Compile each folder as one file" OFF)

function(sonaro_whole_folders target)
  if(NOT SONARO_WHOLE_FOLDERS)
    return()
  endif()
  get_target_property(files ${target} SOURCES)
  foreach(file IN LISTS files)
    get_filename_component(folder ${file} DIRECTORY)
    set_source_files_properties(${file} PROPERTIES UNITY_GROUP "in_${folder}")
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()
