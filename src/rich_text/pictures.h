// \pict: gathers the data of a picture and reads its size from its own header.
#pragma once

#include "rich_text/destination.h"

#include <optional>

namespace selvane::rich_text {

class PictureReader : public Destination
{
public:
    PictureReader() : Destination(Takes::Bytes) {}

    void Start() { input_ = {}; }
    Destination* OnWord(const Token& word) override;
    void OnText(std::string_view digits, const Group& group) override; // hexadecimal
    void AddBytes(std::string_view bytes);

    // The picture, a placeholder if the data are neither PNG nor JPEG, are over 16 MB, or claim to
    // be too large to decode; none if there is nothing to show.
    std::optional<Picture> Finish();

private:
    struct Input
    {
        std::string bytes;
        int pendingDigit = -1;
        bool isTooBig = false;
        std::int32_t goalWidth = 0, goalHeight = 0; // twips, before scaling
        std::int32_t scaleX = 100, scaleY = 100;    // per cent
    };
    Input input_;
};

} // namespace selvane::rich_text
