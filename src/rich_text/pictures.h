// Gathers the data of a picture and reads its size from its own header.
#pragma once

#include "rich_text/rich_text.h"

#include <string_view>

namespace selvane::rich_text {

inline constexpr std::size_t kMaxPictureBytes = std::size_t{16} << 20;
inline constexpr std::size_t kMaxAllPictureBytes = std::size_t{64} << 20;
inline constexpr std::int32_t kMaxPictureSide = 8192; // pixels
inline constexpr std::int64_t kMaxPicturePixels = 32'000'000;

class PictureReader
{
public:
    std::int32_t goalWidth = 0; // twips, before scaling
    std::int32_t goalHeight = 0;
    std::int32_t scaleX = 100; // per cent
    std::int32_t scaleY = 100;

    void AddHex(std::string_view digits); // what is no digit is passed over
    void AddBytes(std::string_view bytes);

    // The picture, a placeholder if the data are neither PNG nor JPEG, are over a limit (bytes:
    // of this picture and of those before it), or claim to be too large to decode.
    Picture Finish(std::size_t bytesBefore);

    bool IsEmpty() const { return data_.empty() && goalWidth == 0 && goalHeight == 0; }

private:
    std::string data_;
    int pendingDigit_ = -1;
    bool isTooBig_ = false;
};

} // namespace selvane::rich_text
