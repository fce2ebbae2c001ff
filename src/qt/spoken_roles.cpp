#include "qt/spoken_roles.h"

#include "qt/labels.h"
#include "qt/picture_widget.h"

#include <QAccessibleWidget>

namespace selvane {

namespace {

class SpokenLink : public QAccessibleWidget
{
public:
    explicit SpokenLink(LinkLabel& link)
        : QAccessibleWidget(&link, QAccessible::Link, link.text()), link_(link)
    {}

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString& name) override
    {
        if (name == pressAction())
            link_.click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    LinkLabel& link_;
};

QAccessibleInterface* Speak(const QString&, QObject* object)
{
    if (auto* const link = qobject_cast<LinkLabel*>(object)) return new SpokenLink(*link);
    if (auto* const picture = qobject_cast<PictureWidget*>(object))
        return new QAccessibleWidget(picture, QAccessible::Graphic);
    return nullptr;
}

} // namespace

void TeachSpokenRoles()
{
    QAccessible::installFactory(Speak);
}

} // namespace selvane
