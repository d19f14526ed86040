# Run as a script: writes a C++ source OUTPUT with the gallery's files from FOLDER as constants, and the hash by
# which a page allows its own script and no other. The script is put together from those of GalleryScripts.cmake.

function(append_file name file)
  cmake_path(ABSOLUTE_PATH file BASE_DIRECTORY "${FOLDER}")
  file(READ "${file}" bytes HEX)
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
  string(REGEX REPLACE "(0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,)"
         "\\1\n" bytes "${bytes}")
  string(APPEND source "constexpr unsigned char ${name}Bytes[] = {\n${bytes}};\n")
  string(APPEND source
    "const std::string_view ${name}(reinterpret_cast<const char*>(${name}Bytes), sizeof ${name}Bytes);\n\n")
  set(source "${source}" PARENT_SCOPE)
endfunction()

# Hexadecimal digits as base 64: three digits are twelve bits, which are two characters.
function(to_base64 hex result)
  set(alphabet ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/)
  # A hash of 64 digits leaves one digit, four bits; two zero bits complete its character, and the text is
  # filled up with "=".
  set(text "")
  foreach(start RANGE 0 60 3)
    string(SUBSTRING "${hex}" ${start} 3 digits)
    math(EXPR high "0x${digits} >> 6")
    math(EXPR low "0x${digits} & 63")
    string(SUBSTRING "${alphabet}" ${high} 1 first)
    string(SUBSTRING "${alphabet}" ${low} 1 second)
    string(APPEND text "${first}${second}")
  endforeach()
  string(SUBSTRING "${hex}" 63 1 digit)
  math(EXPR last "0x${digit} << 2")
  string(SUBSTRING "${alphabet}" ${last} 1 third)
  set(${result} "${text}${third}=" PARENT_SCOPE)
endfunction()

include("${CMAKE_CURRENT_LIST_DIR}/GalleryScripts.cmake")
set(SCRIPT "${OUTPUT}.js")
file(WRITE "${SCRIPT}" "")
foreach(part ${gallery_scripts})
  file(READ "${FOLDER}/${part}" text)
  file(APPEND "${SCRIPT}" "${text}\n")
endforeach()

set(source "// Made from the files of the gallery by EmbedFiles.cmake.\n#include \"preview/GalleryFiles.h\"\n\n")
string(APPEND source "namespace preview::gallery_files {\n\n")
append_file(kPage page.html)
append_file(kCard card.html)
append_file(kStyle gallery.css)
append_file(kScript ${SCRIPT})
file(SHA256 "${SCRIPT}" hash)
to_base64(${hash} hash)
string(APPEND source "const std::string_view kScriptHash = \"sha256-${hash}\";\n\n")
string(APPEND source "} // namespace preview::gallery_files\n")
file(WRITE "${OUTPUT}" "${source}")
