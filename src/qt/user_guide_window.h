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
    // The door outlives it.
    explicit UserGuideFrame(Dispatch& door);

    void Mirror(const Simulation& sim);

protected:
    bool event(QEvent* event) override;

private:
    void BuildTopics();
    void BuildPane();
    void FitPane();

    Dispatch& door_;
    HelpPaneWidget* txtHelp_ = nullptr;
};

} // namespace selvane
