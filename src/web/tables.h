// The control table as JSON: what the page makes its controls from.
#pragma once

#include <string>

namespace selvane::web {

std::string TablesAsJson();

} // namespace selvane::web
