// The files that the gallery's page is put together from, as they stand in the folder gallery/.
#pragma once

#include <string_view>

namespace preview::gallery_files {

extern const std::string_view kPage;   // page.html, with fields "{{name}}"
extern const std::string_view kCard;   // card.html, the same
extern const std::string_view kStyle;  // gallery.css
extern const std::string_view kScript; // its scripts, one behind the other
/// How the page's security policy names the script.
extern const std::string_view kScriptHash;

} // namespace preview::gallery_files
