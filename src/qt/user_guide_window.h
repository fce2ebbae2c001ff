// UserGuideFrame: frmUserGuide on the screen, seven topics above a pane.
#pragma once

#include <QWidget>

namespace selvane {

class Dispatch;
class HelpPaneWidget;
struct Simulation;

class UserGuideFrame : public QWidget
{
    Q_OBJECT

public:
    // The dispatcher outlives it.
    explicit UserGuideFrame(Dispatch& dispatcher);

    void Mirror(const Simulation& sim);

protected:
    bool event(QEvent* event) override;

private:
    void BuildTopics();
    void BuildPane();
    void FitPane();

    Dispatch& dispatcher_;
    HelpPaneWidget* txtHelp_ = nullptr;
};

} // namespace selvane
