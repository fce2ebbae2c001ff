// AboutFrame: frmAbout on the screen, a small dialog of fixed size.
#pragma once

#include <QDialog>

class QLabel;

namespace selvane {

class Dispatch;
struct AboutRow;
struct Simulation;

class AboutFrame : public QDialog
{
    Q_OBJECT

public:
    // The dispatcher outlives it.
    explicit AboutFrame(Dispatch& dispatcher);

    void Mirror(const Simulation& sim);

    void reject() override; // Escape presses cmdOK

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void BuildControl(const AboutRow& row);

    Dispatch& dispatcher_;
    QLabel* lblTitle_ = nullptr;
    QLabel* lblVersion_ = nullptr;
    QLabel* lblDisclaimer_ = nullptr;
};

} // namespace selvane
