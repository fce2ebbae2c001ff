#include "qt/control_mirror.h"

#include "app/tolerance.h"
#include "program/spoken_text.h"
#include "qt/accessibility.h"
#include "qt/appearance.h"
#include "qt/face_button.h"
#include "qt/help_pane_widget.h"
#include "qt/labels.h"
#include "qt/number_line.h"
#include "qt/picture_widget.h"
#include "qt/value_bar.h"

#include <QAction>
#include <QSignalBlocker>
#include <algorithm>

namespace selvane {

namespace {

void MatchVisibility(QWidget& widget, bool visible)
{
    if (widget.isHidden() == visible) widget.setVisible(visible);
}

void MatchBar(ValueBar& bar, const ScrollBar& record)
{
    const QSignalBlocker quiet(bar);
    if (bar.minimum() != record.min || bar.maximum() != record.max)
        bar.setRange(record.min, record.max);
    if (bar.singleStep() != record.smallChange) bar.setSingleStep(record.smallChange);
    if (bar.pageStep() != record.largeChange) bar.setPageStep(record.largeChange);
    if (bar.value() != record.value) bar.setValue(record.value);
    MatchVisibility(bar, record.visible);
}

// The place in the picture's pixels of a coordinate in its user units, held to what a widget's
// place can be.
int PixelAt(double coordinate, double scaleStart, double scaleLength, int pixels)
{
    constexpr double kFarOutside = 10000;
    const double place = (coordinate - scaleStart) * pixels / scaleLength;
    return static_cast<int>(SettledFloor(std::clamp(place, -kFarOutside, kFarOutside) + 0.5));
}

} // namespace

ControlMirror::ControlMirror(const ControlWidgets& widgets) : widgets_(widgets)
{
    const Controls initial = InitialControls();
    labels_ = initial.labels;
    for (std::size_t at = 0; at < kFieldCount; ++at) texts_[at] = initial.fields[at].text;
}

void ControlMirror::Pass(const Simulation& sim)
{
    const Controls& controls = sim.controls;
    MatchBars(controls);
    MatchFields(controls);
    MatchLabels(controls);
    MatchButtons(controls);
    MatchMenu(controls);
    MatchMarker(sim);
    MatchRulingPair(sim.state.ShapeInput);
    MatchSpoken(sim);
    if (widgets_.txtHelp->ShowPane(controls.txtHelp))
        SetSpoken(*widgets_.txtHelp, SpokenPane(sim, WindowId::Main));
    widgets_.picSelvane->Show(sim.picSelvane.drawing);
    widgets_.picDemo->Show(sim.picDemo.drawing);
}

void ControlMirror::MatchBars(const Controls& controls)
{
    for (std::size_t at = 0; at < kScrollBarCount; ++at)
        MatchBar(*widgets_.bars[at], controls.scrollBars[at]);
}

void ControlMirror::MatchFields(const Controls& controls)
{
    for (std::size_t at = 0; at < kFieldCount; ++at) {
        const NumberField& record = controls.fields[at];
        NumberLine& field = *widgets_.fields[at];
        if (texts_[at] != record.text || field.isModified()) {
            // Writing the same text again would lose the caret, the selection and the way back.
            const QString text = TextOf(record.text);
            const QSignalBlocker quiet(field);
            if (field.text() != text) field.setText(text);
            field.setModified(false);
            texts_[at] = record.text;
        }
        if (faults_[at] != record.fault) {
            field.SetFault(TextOf(record.fault));
            faults_[at] = record.fault;
        }
        MatchVisibility(field, record.visible);
    }
}

void ControlMirror::MatchLabels(const Controls& controls)
{
    for (std::size_t at = 0; at < kLabelCount; ++at) {
        const Label& record = controls.labels[at];
        const LabelWidget& label = widgets_.labels[at];
        if (labels_[at].caption != record.caption) {
            if (label.caption) label.caption->SetCaption(TextOf(record.caption));
            labels_[at].caption = record.caption;
        }
        if (labels_[at].toolTip != record.toolTip) {
            label.Widget()->setToolTip(TextOf(record.toolTip));
            labels_[at].toolTip = record.toolTip;
        }
        MatchVisibility(*label.Widget(), record.visible);
    }
}

// Play and Pause share one place: the focus stays there when one takes the other's turn.
void ControlMirror::MatchButtons(const Controls& controls)
{
    const bool focused = widgets_.buttons[Index(btnPlay)]->hasFocus() ||
                         widgets_.buttons[Index(btnPause)]->hasFocus();
    for (std::size_t at = 0; at < kButtonCount; ++at)
        if (controls.buttons[at].visible) MatchVisibility(*widgets_.buttons[at], true);
    if (focused) {
        const bool playing = controls.buttons[Index(btnPause)].visible;
        widgets_.buttons[Index(playing ? btnPause : btnPlay)]->setFocus();
    }
    for (std::size_t at = 0; at < kButtonCount; ++at)
        if (!controls.buttons[at].visible) MatchVisibility(*widgets_.buttons[at], false);
}

// An item that is chosen has flipped its check mark before the program hears of it.
void ControlMirror::MatchMenu(const Controls& controls)
{
    for (std::size_t at = 0; at < kMenuCount; ++at)
        if (widgets_.menu[at]->isChecked() != controls.menu[at].checked)
            widgets_.menu[at]->setChecked(controls.menu[at].checked);
}

void ControlMirror::MatchMarker(const Simulation& sim)
{
    const Marker& record = sim.controls.lblSat;
    QWidget& marker = *widgets_.lblSat;
    if (record.left && record.top) {
        const Picture& picture = sim.picSelvane;
        const QPoint place(
            PixelAt(*record.left, picture.ScaleLeft, picture.ScaleWidth, picture.Width),
            PixelAt(*record.top, picture.ScaleTop, picture.ScaleHeight, picture.Height));
        if (marker.pos() != place) marker.move(place);
    }
    if (markerColour_ != record.back && record.back) {
        QPalette colours;
        colours.setColor(QPalette::Window, ColourOf(*record.back));
        marker.setPalette(colours);
        markerColour_ = record.back;
    }
    MatchVisibility(marker, record.visible && record.left.has_value());
}

void ControlMirror::MatchRulingPair(ShapePair pair)
{
    const auto rows = ShapePairTable();
    const auto row = std::ranges::find(rows, pair, &ShapePairRow::pair);
    MatchVisibility(*widgets_.rulingFrame, row != rows.end());
    if (row != rows.end() && widgets_.rulingFrame->geometry() != RectOf(row->frame))
        widgets_.rulingFrame->setGeometry(RectOf(row->frame));
}

void ControlMirror::MatchSpoken(const Simulation& sim)
{
    for (const ScrollBarRow& row : ScrollBarTable())
        SetSpoken(*widgets_.bars[Index(row.id)], Spoken(sim, row.id));
    for (const FieldRow& row : FieldTable())
        SetSpoken(*widgets_.fields[Index(row.id)], Spoken(sim, row.id));
    for (const ShapePairRow& row : ShapePairTable())
        SetSpoken(*widgets_.buttons[Index(row.button)], Spoken(sim, row.button));
}

} // namespace selvane
