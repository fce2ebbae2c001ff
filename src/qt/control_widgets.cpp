#include "qt/control_widgets.h"

#include "app/handlers.h"
#include "program/program.h"
#include "program/spoken_text.h"
#include "qt/accessibility.h"
#include "qt/appearance.h"
#include "qt/dispatch.h"
#include "qt/face_button.h"
#include "qt/help_pane_widget.h"
#include "qt/labels.h"
#include "qt/menus.h"
#include "qt/number_line.h"
#include "qt/picture_widget.h"
#include "qt/value_bar.h"

#include <QFrame>

namespace selvane {

namespace {

class ControlBuilder
{
public:
    ControlBuilder(ControlWidgets& to, QWidget& panel, Dispatch& dispatcher)
        : widgets_(to), panel_(panel), dispatcher_(dispatcher)
    {}

    // From the bottom of the pile to its top.
    void Build()
    {
        for (const FrameRow& row : FrameTable()) AddFrame(row);
        AddRulingFrame();
        const Simulation& sim = dispatcher_.Sim();
        widgets_.picSelvane = new PictureWidget(kPicSelvane, &panel_);
        widgets_.picSelvane->SetWords([&sim] { return SpokenMainPicture(sim); });
        widgets_.picDemo = new PictureWidget(kPicDemo, &panel_);
        widgets_.picDemo->SetWords([&sim] { return SpokenTutorialPicture(sim); });
        for (const LabelRow& row : LabelTable()) AddLabel(row);
        AddMarker();
        for (const ScrollBarRow& row : ScrollBarTable()) AddBar(row);
        for (const FieldRow& row : FieldTable()) AddField(row);
        for (const ButtonRow& row : ButtonTable()) AddButton(row);
        AddHelpPane();
        SetCoveredParts();
        OrderTabs();
    }

private:
    template <typename Row> void Place(QWidget& widget, const Row& row)
    {
        widget.setObjectName(TextOf(row.name));
        widget.setGeometry(RectOf(row.place));
    }

    QFrame* MakeFrame(const QColor& colour)
    {
        auto* const frame = new QFrame(&panel_);
        frame->setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
        QPalette colours;
        colours.setColor(QPalette::WindowText, colour);
        frame->setPalette(colours);
        return frame;
    }

    void AddRulingFrame()
    {
        widgets_.rulingFrame = MakeFrame(ColourOf(kRulingColour));
        widgets_.rulingFrame->setObjectName("rulingFrame");
    }

    void AddFrame(const FrameRow& row)
    {
        QFrame* const frame = MakeFrame(kFrameColour);
        Place(*frame, row);
        QPalette colours = frame->palette();
        if (row.fill) colours.setColor(QPalette::Window, ColourOf(*row.fill));
        frame->setPalette(colours);
        frame->setAutoFillBackground(row.fill.has_value());
    }

    void AddLabel(const LabelRow& row)
    {
        LabelWidget& label = widgets_.labels[Index(row.id)];
        if (kHandlers.label[Index(row.id)]) {
            label.link = new LinkLabel(TextOf(row.caption), row.place, &panel_);
            QObject::connect(label.link, &QAbstractButton::clicked, &dispatcher_,
                             [dispatcher = &dispatcher_, id = row.id] {
                                 dispatcher->Act(WindowId::Main,
                                                 [id](Simulation& sim) { ClickLabel(sim, id); });
                             });
        } else {
            QWidget& parent = row.id == lblPlanet ? *widgets_.picSelvane : panel_;
            label.caption = new CaptionLabel(row, &parent);
        }
        label.Widget()->setObjectName(TextOf(row.name));
        label.Widget()->setToolTip(TextOf(row.toolTip));
        if (label.link) SetSpoken(*label.link, Spoken(dispatcher_.Sim(), row.id));
    }

    void AddMarker()
    {
        widgets_.lblSat = new QWidget(widgets_.picSelvane);
        widgets_.lblSat->setObjectName("lblSat");
        SetSpoken(*widgets_.lblSat, SpokenMarker());
        widgets_.lblSat->resize(kMarkerSize, kMarkerSize);
        widgets_.lblSat->setAutoFillBackground(true);
        widgets_.lblSat->hide();
    }

    void AddBar(const ScrollBarRow& row)
    {
        const auto direction =
            row.direction == Direction::Horizontal ? Qt::Horizontal : Qt::Vertical;
        auto* const bar = new ValueBar(direction, &panel_);
        widgets_.bars[Index(row.id)] = bar;
        Place(*bar, row);
        bar->setRange(row.min, row.max);
        bar->setSingleStep(row.smallChange);
        bar->setPageStep(row.largeChange);
        bar->setValue(row.value);
        QObject::connect(bar, &QAbstractSlider::valueChanged, &dispatcher_,
                         [dispatcher = &dispatcher_, id = row.id](int value) {
                             dispatcher->Act(WindowId::Main, [id, value](Simulation& sim) {
                                 Scroll(sim, id, value);
                             });
                         });
    }

    void AddField(const FieldRow& row)
    {
        auto* const field = new NumberLine(&panel_);
        widgets_.fields[Index(row.id)] = field;
        Place(*field, row);
        field->setText(TextOf(row.text));
        const ScrollBarRow& bar = ScrollBarTable()[Index(row.bar)];
        widgets_.labels[Index(bar.caption)].caption->setBuddy(field);
        // Assistive technology changes a text without editing it.
        QObject::connect(field, &QLineEdit::textChanged, &dispatcher_,
                         [dispatcher = &dispatcher_, id = row.id, field](const QString& text) {
                             field->setModified(true);
                             dispatcher->Act(WindowId::Main,
                                             [id, typed = text.toStdString()](Simulation& sim) {
                                                 Type(sim, id, typed);
                                             });
                         });
    }

    void AddButton(const ButtonRow& row)
    {
        auto* const button = new FaceButton(row, &panel_);
        widgets_.buttons[Index(row.id)] = button;
        Place(*button, row);
        SetSpoken(*button, Spoken(dispatcher_.Sim(), row.id));
        QObject::connect(button, &QAbstractButton::clicked, &dispatcher_,
                         [dispatcher = &dispatcher_, id = row.id] {
                             dispatcher->Act(WindowId::Main,
                                             [id](Simulation& sim) { Click(sim, id); });
                         });
    }

    void AddHelpPane()
    {
        auto* const pane = new HelpPaneWidget(&panel_);
        widgets_.txtHelp = pane;
        pane->setObjectName("txtHelp");
        pane->setGeometry(RectOf(kHelpPane));
        QObject::connect(pane, &HelpPaneWidget::linkClicked, &dispatcher_,
                         [dispatcher = &dispatcher_](const QString& link) {
                             dispatcher->Act(WindowId::Main,
                                             [to = link.toStdString()](Simulation& sim) {
                                                 FollowLink(sim, WindowId::Main, to);
                                             });
                         });
    }

    void SetCoveredParts()
    {
        const QRect picture = widgets_.picSelvane->geometry();
        QRegion covered;
        for (const QWidget* over : {static_cast<QWidget*>(widgets_.bars[Index(sclLR)]),
                                    static_cast<QWidget*>(widgets_.bars[Index(sclUD)]),
                                    static_cast<QWidget*>(widgets_.buttons[Index(Command1)])})
            covered += over->geometry().translated(-picture.topLeft());
        widgets_.picSelvane->SetCovered(covered);
    }

    void OrderTabs()
    {
        QWidget* before = nullptr;
        for (const std::string_view name : ReadingOrder()) {
            auto* const next = panel_.findChild<QWidget*>(TextOf(name));
            if (before) QWidget::setTabOrder(before, next);
            before = next;
        }
    }

    ControlWidgets& widgets_;
    QWidget& panel_;
    Dispatch& dispatcher_;
};

} // namespace

QWidget* LabelWidget::Widget() const
{
    return link ? static_cast<QWidget*>(link) : static_cast<QWidget*>(caption);
}

ControlWidgets BuildControls(QWidget& panel, QMenuBar& menuBar, Dispatch& dispatcher)
{
    InstallAccessibleRoles();
    ControlWidgets widgets;
    ControlBuilder(widgets, panel, dispatcher).Build();
    widgets.menu = BuildMenus(menuBar, dispatcher);
    return widgets;
}

} // namespace selvane
