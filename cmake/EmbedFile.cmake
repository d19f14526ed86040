# embed_file(target file name): compiles the bytes of `file` into `target`, as
#   extern const unsigned char <name>[];
#   extern const std::size_t <name>Size;
function(embed_file target file name)
  get_filename_component(path "${file}" ABSOLUTE)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${path}")
  file(READ "${path}" bytes HEX)
  string(LENGTH "${bytes}" digits)
  math(EXPR size "${digits} / 2")
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  get_filename_component(fileName "${path}" NAME)
  set(source "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
  file(CONFIGURE OUTPUT "${source}" @ONLY CONTENT
"// The bytes of @fileName@.
#include <cstddef>

extern const unsigned char @name@[];
extern const std::size_t @name@Size;
const unsigned char @name@[] = {@bytes@};
const std::size_t @name@Size = @size@;
")
  target_sources(${target} PRIVATE "${source}")
endfunction()
