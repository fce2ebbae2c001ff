// bare_window: a window of the toolkit with as many widgets of the same kinds, texts and places as
// the program's, and two empty pictures. What the program costs in time and memory is measured
// against this.
#include "app/control_table.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTextBrowser>
#include <map>

namespace {

using namespace selvane;

QString TextOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void Put(QWidget& widget, const Place& place)
{
    widget.setGeometry(place.left, place.top, place.width, place.height);
    if (place.width == 0) widget.adjustSize();
}

void AddPicture(QWidget& panel, const PictureRow& row)
{
    auto* const picture = new QWidget(&panel);
    QPalette black;
    black.setColor(QPalette::Window, Qt::black);
    picture->setPalette(black);
    picture->setAutoFillBackground(true);
    Put(*picture, row.place);
}

void AddControls(QWidget& panel)
{
    for (const FrameRow& row : FrameTable()) {
        auto* const frame = new QFrame(&panel);
        frame->setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
        Put(*frame, row.place);
    }
    AddPicture(panel, kPicSelvane);
    AddPicture(panel, kPicDemo);
    for (const LabelRow& row : LabelTable())
        Put(*new QLabel(TextOf(row.caption), &panel), row.place);
    for (const ScrollBarRow& row : ScrollBarTable()) {
        const bool across = row.direction == Direction::Horizontal;
        auto* const bar = new QScrollBar(across ? Qt::Horizontal : Qt::Vertical, &panel);
        bar->setRange(row.min, row.max);
        bar->setValue(row.value);
        Put(*bar, row.place);
    }
    for (const FieldRow& row : FieldTable())
        Put(*new QLineEdit(TextOf(row.text), &panel), row.place);
    for (const ButtonRow& row : ButtonTable())
        Put(*new QPushButton(TextOf(row.caption), &panel), row.place);
    Put(*new QTextBrowser(&panel), kHelpPane);
}

void AddMenus(QMenuBar& bar)
{
    std::map<MenuId, QMenu*> menus;
    for (const MenuRow& row : MenuTable()) {
        if (!row.under)
            menus[row.id] = bar.addMenu(TextOf(row.caption));
        else if (row.caption.empty())
            menus[*row.under]->addSeparator();
        else
            menus[*row.under]->addAction(TextOf(row.caption));
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    QFont font("Carlito");
    font.setPixelSize(12);
    QApplication::setFont(font);
    QMainWindow window;
    window.setWindowTitle("bare");
    AddMenus(*window.menuBar());
    auto* const panel = new QWidget;
    panel->setFixedSize(kClientWidth, kClientHeight);
    AddControls(*panel);
    auto* const area = new QScrollArea;
    area->setWidget(panel);
    window.setCentralWidget(area);
    window.resize(kWindowOuter.width, kWindowOuter.height);
    window.show();
    return QApplication::exec();
}
