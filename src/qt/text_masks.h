// QtTextMasks: the words of the pictures in the window's font.
#pragma once

#include "raster/painter.h"

#include <QByteArray>
#include <QHash>
#include <vector>

namespace selvane {

// Needs the application object.
class QtTextMasks : public raster::TextMasks
{
public:
    raster::Mask MaskOf(std::string_view text, double scale) override;

private:
    struct Coverage
    {
        std::vector<std::uint8_t> pixels;
        int width = 0, height = 0;
    };

    static Coverage Render(const QString& text, double scale);

    // Few texts recur at every frame; a clock's texts pass through.
    QHash<QByteArray, Coverage> known_;
    double scale_ = 0; // of those known
};

} // namespace selvane
