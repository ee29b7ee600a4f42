# sonaro_folder(NAME [LINKS FOLDER...] [LOGIC FILE...] [WINDOWS FILE...]): the target of a folder of src.
# LOGIC is compiled natively, too, where no header of Windows exists; WINDOWS only for Windows.
function(sonaro_folder name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;LOGIC;WINDOWS")
  set(sources ${arg_LOGIC})
  if(WIN32)
    list(APPEND sources ${arg_WINDOWS})
  endif()
  if(sources)
    add_library(${name} STATIC ${sources})
    set(scope PUBLIC)
    sonaro_whole_folders(${name})
    # Windows and logic stay two files: a name without linkage may be used in both.
    set_source_files_properties(${arg_WINDOWS} PROPERTIES UNITY_GROUP ${name}_windows)
  else()
    add_library(${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  # Headers are named from src, "base/Text.h", but a target shows those of its own folder only. Where the system refuses
  # links between folders, all of src is seen.
  set(shown ${CMAKE_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${shown})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${shown}/${name} RESULT refused SYMBOLIC)
  if(refused)
    set(shown ${CMAKE_SOURCE_DIR}/src)
  endif()
  target_include_directories(${name} ${scope} ${shown})
  target_link_libraries(${name} ${scope} ${arg_LINKS} sonaro_flags)
endfunction()
