#include "qt/menus.h"

#include "program/program.h"
#include "qt/appearance.h"
#include "qt/dispatch.h"

#include <QAction>
#include <QMenu>
#include <QStyleOption>
#include <map>
#include <optional>

namespace selvane {

namespace {

// Marks the first letter that no neighbour has taken as the access key.
QString WithAccessKey(std::string_view caption, QString& taken)
{
    QString text = TextOf(caption);
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar letter = text.at(at).toLower();
        if (!letter.isLetter() || taken.contains(letter)) continue;
        taken += letter;
        return text.insert(at, '&');
    }
    return text;
}

QAction* AddItem(QMenu& menu, const MenuRow& row, const QString& text, Dispatch& dispatcher)
{
    if (row.caption.empty()) return menu.addSeparator();
    QAction* const item = menu.addAction(text);
    item->setCheckable(row.checkable);
    item->setChecked(row.checked);
    QObject::connect(
        item, &QAction::triggered, &dispatcher, [dispatcher = &dispatcher, id = row.id] {
            dispatcher->Act(WindowId::Main, [id](Simulation& sim) { Choose(sim, id); });
        });
    return item;
}

} // namespace

void MenuBar::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const
{
    QMenuBar::initStyleOption(option, action);
    if (hasFocus() && action == activeAction()) option->state |= QStyle::State_Sunken;
}

std::array<QAction*, kMenuCount> BuildMenus(QMenuBar& bar, Dispatch& dispatcher)
{
    std::array<QAction*, kMenuCount> actions{};
    std::map<std::optional<MenuId>, QString> taken; // access keys, by menu
    for (const MenuRow& row : MenuTable()) {
        const QString text = WithAccessKey(row.caption, taken[row.under]);
        QAction*& action = actions[Index(row.id)];
        if (row.under)
            action = AddItem(*actions[Index(*row.under)]->menu(), row, text, dispatcher);
        else
            action = bar.addMenu(text)->menuAction();
        action->setObjectName(TextOf(row.name));
    }
    return actions;
}

} // namespace selvane
