// The words for the look of characters and paragraphs.
#pragma once

#include "rich_text/destination.h"

namespace selvane::rich_text {

// False: the word is none of these.
bool ApplyFormatWord(const Token& word, Group& group);

} // namespace selvane::rich_text
