// NumberLine: a single-line field that is typed in, slim enough for the layout's low, narrow
// fields.
#pragma once

#include <QLineEdit>

namespace selvane {

class NumberLine : public QLineEdit
{
public:
    explicit NumberLine(QWidget* parent);

    // Why the text describes nothing; empty when it does. Shown by colour and tool tip.
    void SetFault(const QString& why);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace selvane
