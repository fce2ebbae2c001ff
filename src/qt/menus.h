// The menu bar, made from the control table. Every item has an access key.
#pragma once

#include "app/control_ids.h"

#include <QMenuBar>
#include <array>

namespace selvane {

class Dispatch;

// Shows which title the keyboard is on, also while no menu is open.
class MenuBar : public QMenuBar
{
    Q_OBJECT

protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;
};

std::array<QAction*, kMenuCount> BuildMenus(QMenuBar& bar, Dispatch& dispatcher);

} // namespace selvane
