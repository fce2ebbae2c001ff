// The main window's widgets: one for each record, at its place in the control table and named like
// its record.
#pragma once

#include "app/control_table.h"
#include "app/simulation.h"

#include <QString>
#include <array>
#include <span>
#include <string_view>

class QAction;
class QLabel;
class QMenuBar;
class QWidget;

namespace selvane {

class CaptionLabel;
class Dispatch;
class FaceButton;
class HelpPaneWidget;
class LinkLabel;
class NumberLine;
class PictureWidget;
class ValueBar;

// A label is one or the other: a link where it has a handler.
struct LabelWidget
{
    CaptionLabel* caption = nullptr;
    LinkLabel* link = nullptr;

    QWidget* Widget() const;
};

struct ControlWidgets
{
    std::array<ValueBar*, kScrollBarCount> bars{};
    std::array<NumberLine*, kFieldCount> fields{};
    std::array<FaceButton*, kButtonCount> buttons{};
    std::array<LabelWidget, kLabelCount> labels{};
    std::array<QAction*, kMenuCount> menu{};
    PictureWidget* picSelvane = nullptr;
    PictureWidget* picDemo = nullptr;
    QWidget* rulingFrame = nullptr; // round the pair that gives the orbit its shape
    QWidget* lblSat = nullptr;
    HelpPaneWidget* txtHelp = nullptr;
};

// Puts the controls on the panel, and fills the menu bar. What the user does to a widget goes to
// the dispatcher.
ControlWidgets BuildControls(QWidget& panel, QMenuBar& menuBar, Dispatch& dispatcher);

} // namespace selvane
