# Run by the build: writes SOURCE, in which the function NAME has the files below FOLDER.
file(GLOB_RECURSE files RELATIVE ${FOLDER} ${FOLDER}/*)
set(arrays "")
set(rows "")
set(number 0)
foreach(file IN LISTS files)
  file(READ ${FOLDER}/${file} bytes HEX)
  string(LENGTH "${bytes}" digits)
  math(EXPR size "${digits} / 2")
  # The zero at the end is there for an empty file.
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  string(APPEND arrays "const unsigned char file${number}[] = {${bytes}0};\n")
  string(APPEND rows
         "        {\"${file}\", std::string_view(reinterpret_cast<const char*>(file${number}), ${size})},\n")
  math(EXPR number "${number} + 1")
endforeach()

file(WRITE ${SOURCE} "// Made by the build.
#include \"tools/ptn/common/Embedded.h\"

namespace ptn
{

namespace
{

${arrays}
} // namespace

const std::vector<EmbeddedFile>& ${NAME}()
{
    static const std::vector<EmbeddedFile> files = {
${rows}    };
    return files;
}

} // namespace ptn
")
