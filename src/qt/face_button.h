// FaceButton: a small button with a caption, a picture or a blank face. A click leaves the focus
// where it is, so that a field keeps it; Space and Enter press the button that has it.
#pragma once

#include "app/control_table.h"

#include <QPushButton>

namespace selvane {

class FaceButton : public QPushButton
{
public:
    FaceButton(const ButtonRow& row, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const Glyph glyph_;
};

} // namespace selvane
