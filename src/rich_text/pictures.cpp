#include "rich_text/pictures.h"

#include <algorithm>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::string_view kPngSignature = "\x89PNG\r\n\x1A\n";
constexpr std::string_view kJpegSignature = "\xFF\xD8\xFF";
constexpr std::size_t kMaxBytes = std::size_t{16} << 20;
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

// Big-endian; 0 past the end.
std::int64_t Number(std::string_view data, std::size_t at, std::size_t length)
{
    std::int64_t value = 0;
    for (std::size_t i = at; i < at + length; ++i)
        value = value * 256 + (i < data.size() ? static_cast<std::uint8_t>(data[i]) : 0);
    return value;
}

// The signature is followed by the IHDR chunk: length, name, width, height.
Size PngSize(std::string_view data)
{
    return {Number(data, 16, 4), Number(data, 20, 4)};
}

bool IsStartOfFrame(std::int64_t marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Walks the segments up to the frame header: marker, length, precision, height, width.
Size JpegSize(std::string_view data)
{
    std::size_t at = 2;
    while (at + 9 <= data.size()) {
        if (Number(data, at, 1) != 0xFF) return {};
        const std::int64_t marker = Number(data, at + 1, 1);
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

Destination* PictureReader::OnWord(const Token& word)
{
    const std::pair<std::string_view, std::int32_t*> numbers[] = {
        {"picwgoal", &input_.goalWidth},
        {"pichgoal", &input_.goalHeight},
        {"picscalex", &input_.scaleX},
        {"picscaley", &input_.scaleY},
    };
    for (const auto& [name, number] : numbers) {
        if (word.text != name) continue;
        *number = word.number;
        return this;
    }
    return nullptr;
}

// What is no digit is passed over.
void PictureReader::OnText(std::string_view digits, const Group&)
{
    for (const char c : digits) {
        const int digit = HexDigit(c);
        if (digit < 0) continue;
        if (input_.pendingDigit < 0) {
            input_.pendingDigit = digit;
            continue;
        }
        const char byte = static_cast<char>(std::exchange(input_.pendingDigit, -1) * 16 + digit);
        AddBytes({&byte, 1});
    }
}

void PictureReader::AddBytes(std::string_view bytes)
{
    input_.isTooBig = input_.isTooBig || bytes.size() > kMaxBytes - input_.bytes.size();
    if (!input_.isTooBig) input_.bytes += bytes;
}

std::optional<Picture> PictureReader::Finish()
{
    std::string& bytes = input_.bytes;
    if (bytes.empty() && input_.goalWidth == 0 && input_.goalHeight == 0) return std::nullopt;
    Picture picture;
    const bool isPng = bytes.starts_with(kPngSignature);
    const bool isJpeg = bytes.starts_with(kJpegSignature);
    const Size size = isPng ? PngSize(bytes) : isJpeg ? JpegSize(bytes) : Size{};
    if (IsDecodable(size) && !input_.isTooBig) {
        picture.kind = isPng ? PictureKind::Png : PictureKind::Jpeg;
        picture.widthPixels = static_cast<std::int32_t>(size.width);
        picture.heightPixels = static_cast<std::int32_t>(size.height);
        picture.bytes = std::move(bytes);
    }
    picture.widthTwips = ShownLength(input_.goalWidth, input_.scaleX, picture.widthPixels);
    picture.heightTwips = ShownLength(input_.goalHeight, input_.scaleY, picture.heightPixels);
    return picture;
}

} // namespace selvane::rich_text
