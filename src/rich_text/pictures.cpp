#include "rich_text/pictures.h"

#include <algorithm>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::string_view kPngSignature = "\x89PNG\r\n\x1A\n";
constexpr std::string_view kJpegSignature = "\xFF\xD8\xFF";
constexpr std::size_t kMaxBytes = std::size_t{16} << 20;
constexpr std::size_t kMaxAllBytes = std::size_t{64} << 20;
constexpr std::int32_t kMaxSide = 8192;  // pixels
constexpr std::int32_t kMaxScale = 1000; // per cent

// 0 to 15, or -1.
int HexDigit(char c)
{
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

struct Size
{
    std::int64_t width = 0, height = 0; // pixels
};

std::uint8_t ByteAt(std::string_view data, std::size_t at)
{
    return static_cast<std::uint8_t>(data[at]);
}

// Big-endian; 0 past the end.
std::int64_t Number(std::string_view data, std::size_t at, std::size_t length)
{
    std::int64_t value = 0;
    for (std::size_t i = at; i < at + length; ++i)
        value = value * 256 + (i < data.size() ? ByteAt(data, i) : 0);
    return value;
}

// The signature is followed by the IHDR chunk: length, name, width, height.
Size PngSize(std::string_view data)
{
    return {Number(data, 16, 4), Number(data, 20, 4)};
}

bool IsStartOfFrame(std::uint8_t marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Walks the segments up to the frame header: marker, length, precision, height, width.
Size JpegSize(std::string_view data)
{
    std::size_t at = 2;
    while (at + 9 <= data.size()) {
        if (ByteAt(data, at) != 0xFF) return {};
        const std::uint8_t marker = ByteAt(data, at + 1);
        if (IsStartOfFrame(marker)) return {Number(data, at + 7, 2), Number(data, at + 5, 2)};
        const bool hasLength = marker != 0xFF && marker != 0x01 && (marker < 0xD0 || marker > 0xD8);
        at += marker == 0xFF ? 1 : 2;
        if (hasLength) at += static_cast<std::size_t>(Number(data, at, 2));
    }
    return {};
}

bool IsDecodable(Size size)
{
    return size.width > 0 && size.height > 0 && size.width <= kMaxSide && size.height <= kMaxSide &&
           size.width * size.height <= kMaxPicturePixels;
}

std::int32_t ShownLength(std::int32_t goal, std::int32_t scale, std::int32_t pixels)
{
    const std::int32_t known = std::clamp(goal, 0, kLongestLength);
    const std::int32_t unscaled = known > 0 ? known : pixels * kTwipsPerPixel;
    const std::int32_t percent = scale > 0 ? std::min(scale, kMaxScale) : 100;
    return std::min(unscaled * percent / 100, kLongestLength);
}

} // namespace

void PictureReader::Start()
{
    data_.clear();
    pendingDigit_ = -1;
    isTooBig_ = false;
    goalWidth_ = goalHeight_ = 0;
    scaleX_ = scaleY_ = 100;
}

bool PictureReader::OnWord(const Token& word, Group&)
{
    if (word.text == "picwgoal")
        goalWidth_ = word.number;
    else if (word.text == "pichgoal")
        goalHeight_ = word.number;
    else if (word.text == "picscalex")
        scaleX_ = word.number;
    else if (word.text == "picscaley")
        scaleY_ = word.number;
    else
        return false;
    return true;
}

// What is no digit is passed over.
void PictureReader::OnText(std::string_view digits, const Group&)
{
    for (const char c : digits) {
        const int digit = HexDigit(c);
        if (digit < 0) continue;
        if (pendingDigit_ < 0) {
            pendingDigit_ = digit;
            continue;
        }
        const char byte = static_cast<char>(pendingDigit_ * 16 + digit);
        pendingDigit_ = -1;
        AddBytes({&byte, 1});
    }
}

void PictureReader::AddBytes(std::string_view bytes)
{
    isTooBig_ = isTooBig_ || bytes.size() > kMaxBytes - data_.size();
    if (!isTooBig_) data_ += bytes;
}

std::optional<Picture> PictureReader::Finish()
{
    if (data_.empty() && goalWidth_ == 0 && goalHeight_ == 0) return std::nullopt;
    Picture picture;
    Size size;
    if (data_.starts_with(kPngSignature)) {
        picture.kind = PictureKind::Png;
        size = PngSize(data_);
    } else if (data_.starts_with(kJpegSignature)) {
        picture.kind = PictureKind::Jpeg;
        size = JpegSize(data_);
    }
    if (!IsDecodable(size) || isTooBig_ || data_.size() > kMaxAllBytes - bytesBefore_) {
        picture.kind = PictureKind::Placeholder;
    } else {
        picture.widthPixels = static_cast<std::int32_t>(size.width);
        picture.heightPixels = static_cast<std::int32_t>(size.height);
        picture.bytes = std::move(data_);
        bytesBefore_ += picture.bytes.size();
    }
    picture.widthTwips = ShownLength(goalWidth_, scaleX_, picture.widthPixels);
    picture.heightTwips = ShownLength(goalHeight_, scaleY_, picture.heightPixels);
    return picture;
}

} // namespace selvane::rich_text
