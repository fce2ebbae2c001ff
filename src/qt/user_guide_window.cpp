#include "qt/user_guide_window.h"

#include "program/program.h"
#include "program/spoken_text.h"
#include "qt/accessibility.h"
#include "qt/appearance.h"
#include "qt/dispatch.h"
#include "qt/help_pane_widget.h"
#include "qt/labels.h"

#include <QEvent>

namespace selvane {

UserGuideFrame::UserGuideFrame(Dispatch& dispatcher) : dispatcher_(dispatcher)
{
    setObjectName("frmUserGuide");
    setWindowTitle(TextOf(kUserGuideCaption));
    BuildTopics();
    BuildPane();
    move(kUserGuideClient.left, kUserGuideClient.top);
    resize(kUserGuideClient.width, kUserGuideClient.height);
}

void UserGuideFrame::BuildTopics()
{
    for (const TopicRow& row : TopicTable()) {
        auto* label = new LinkLabel(TextOf(row.caption), row.place, this);
        label->setObjectName(TextOf(row.name));
        SetSpoken(*label, Spoken(row.topic));
        connect(label, &LinkLabel::clicked, this, [this, topic = row.topic] {
            dispatcher_.Act(WindowId::UserGuide,
                            [topic](Simulation& sim) { ClickTopic(sim, topic); });
        });
    }
}

void UserGuideFrame::BuildPane()
{
    txtHelp_ = new HelpPaneWidget(this); // after the topics, also in the tab order
    txtHelp_->setObjectName("txtHelp");
    txtHelp_->move(kUserGuidePane.left, kUserGuidePane.top);
    connect(txtHelp_, &HelpPaneWidget::linkClicked, this, [this](const QString& link) {
        dispatcher_.Act(WindowId::UserGuide, [to = link.toStdString()](Simulation& sim) {
            FollowLink(sim, WindowId::UserGuide, to);
        });
    });
}

void UserGuideFrame::Mirror(const Simulation& sim)
{
    if (txtHelp_->ShowPane(sim.windows.frmUserGuide.txtHelp))
        SetSpoken(*txtHelp_, SpokenPane(sim, WindowId::UserGuide));
}

// The frame comes and goes without a change of size, so every sign of it counts.
bool UserGuideFrame::event(QEvent* event)
{
    const bool done = QWidget::event(event);
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Move:
    case QEvent::Show:
    case QEvent::WindowActivate:
    case QEvent::WindowStateChange:
        if (txtHelp_) FitPane();
        break;
    default:
        break;
    }
    return done;
}

void UserGuideFrame::FitPane()
{
    const QSize outer = frameGeometry().size();
    const PaneSize pane = PaneSizeFor(outer.width(), outer.height());
    txtHelp_->resize(pane.width, pane.height);
}

} // namespace selvane
