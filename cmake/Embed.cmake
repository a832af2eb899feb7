# embed_folder(TARGET NAME FOLDER): the files below FOLDER as bytes within TARGET, which gets the function
# `const std::vector<ptn::EmbeddedFile>& ptn::NAME()` by it. A changed, new or lost file is noticed by the build.
set(EMBED_SCRIPT ${CMAKE_CURRENT_LIST_DIR}/EmbedFiles.cmake)

function(embed_folder target name folder)
  cmake_path(ABSOLUTE_PATH folder)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS ${folder}/*)
  # It changes with the names, so that the loss of a file is noticed too.
  file(CONFIGURE OUTPUT ${source}.list CONTENT "${files}" @ONLY)
  add_custom_command(OUTPUT ${source}
    COMMAND ${CMAKE_COMMAND} -D NAME=${name} -D FOLDER=${folder} -D SOURCE=${source} -P ${EMBED_SCRIPT}
    DEPENDS ${EMBED_SCRIPT} ${source}.list ${files}
    COMMENT "Embedding ${folder}"
    VERBATIM)
  target_sources(${target} PRIVATE ${source})
endfunction()
