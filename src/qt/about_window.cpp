#include "qt/about_window.h"

#include "program/program.h"
#include "program/spoken_text.h"
#include "qt/accessibility.h"
#include "qt/appearance.h"
#include "qt/application_icon.h"
#include "qt/dispatch.h"
#include "qt/labels.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace selvane {

namespace {

QLabel* MakeIcon(const AboutRow& row, QWidget* parent)
{
    auto* icon = new QLabel(parent);
    icon->setPixmap(ApplicationIcon().pixmap(QSize(row.place.width, row.place.height),
                                             parent->devicePixelRatioF()));
    return icon;
}

QLabel* MakeText(const AboutRow& row, QWidget* parent)
{
    auto* label = new QLabel(TextOf(row.text), parent);
    label->setFont(FontOf(row.points, row.weight));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setWordWrap(true);
    return label;
}

// A label shows one line's end, whichever of its two characters comes first.
QString Lines(const std::string& text)
{
    return TextOf(text).remove(u'\r');
}

} // namespace

AboutFrame::AboutFrame(Dispatch& dispatcher)
    : QDialog(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      dispatcher_(dispatcher)
{
    setObjectName("frmAbout");
    setFixedSize(kAboutClientWidth, kAboutClientHeight);
    for (const AboutRow& row : AboutTable()) BuildControl(row);
    for (const auto& [first, second] :
         {std::pair{"cmdOK", "cmdSysInfo"}, {"cmdSysInfo", "LblWebsite"}, {"LblWebsite", "Label1"}})
        setTabOrder(findChild<QWidget*>(first), findChild<QWidget*>(second));
    findChild<QWidget*>("cmdOK")->setFocus();
}

void AboutFrame::BuildControl(const AboutRow& row)
{
    using enum AboutControl;
    const auto press = [this, control = row.control] {
        dispatcher_.Act(WindowId::About, [control](Simulation& sim) { ClickAbout(sim, control); });
    };
    QWidget* made = nullptr;
    if (row.control == picIcon)
        made = MakeIcon(row, this);
    else if (row.control == cmdOK || row.control == cmdSysInfo) {
        auto* button = new QPushButton(TextOf(row.text), this);
        button->setDefault(row.control == cmdOK);
        connect(button, &QPushButton::clicked, this, press);
        made = button;
    } else if (row.underline == Underline::Yes) {
        auto* link = new LinkLabel(TextOf(row.text), row.place, this);
        connect(link, &LinkLabel::clicked, this, press);
        made = link;
    } else {
        QLabel* label = MakeText(row, this);
        if (row.control == lblTitle) lblTitle_ = label;
        if (row.control == lblVersion) lblVersion_ = label;
        if (row.control == lblDisclaimer) lblDisclaimer_ = label;
        made = label;
    }
    made->setObjectName(TextOf(row.name));
    made->setGeometry(RectOf(row.place));
}

void AboutFrame::Mirror(const Simulation& sim)
{
    const AboutWindow& record = sim.windows.frmAbout;
    setWindowTitle(TextOf(record.caption));
    lblTitle_->setText(TextOf(record.lblTitle));
    lblVersion_->setText(TextOf(record.lblVersion));
    lblDisclaimer_->setText(Lines(record.lblDisclaimer));
    for (const AboutRow& row : AboutTable())
        SetSpoken(*findChild<QWidget*>(TextOf(row.name)), Spoken(sim, row.control));
}

void AboutFrame::reject()
{
    dispatcher_.Act(WindowId::About, [](Simulation& sim) { ClickAbout(sim, AboutControl::cmdOK); });
}

void AboutFrame::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    QPainter painter(this);
    for (const RuleLine& line : AboutRules()) {
        painter.fillRect(QRectF(line.left, line.y, line.right - line.left, line.width),
                         ColourOf(line.colour));
    }
}

} // namespace selvane
