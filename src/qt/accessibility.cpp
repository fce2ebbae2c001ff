#include "qt/accessibility.h"

#include "program/spoken_text.h"
#include "qt/appearance.h"
#include "qt/labels.h"
#include "qt/picture_widget.h"

#include <QAccessibleWidget>
#include <QTextEdit>

namespace selvane {

namespace {

class AccessibleLink : public QAccessibleWidget
{
public:
    explicit AccessibleLink(LinkLabel& link)
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

// The satellite moves on while nobody asks: what the picture shows is put into words when somebody
// does.
class AccessiblePicture : public QAccessibleWidget
{
public:
    explicit AccessiblePicture(PictureWidget& picture)
        : QAccessibleWidget(&picture, QAccessible::Graphic), picture_(picture)
    {}

    QString text(QAccessible::Text which) const override
    {
        const SpokenText spoken = picture_.Spoken();
        if (which == QAccessible::Name) return TextOf(spoken.name);
        if (which == QAccessible::Description) return TextOf(spoken.description);
        return QAccessibleWidget::text(which);
    }

private:
    PictureWidget& picture_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object)
{
    if (auto* const link = qobject_cast<LinkLabel*>(object)) return new AccessibleLink(*link);
    if (auto* const picture = qobject_cast<PictureWidget*>(object))
        return new AccessiblePicture(*picture);
    return nullptr;
}

} // namespace

void InstallAccessibleRoles()
{
    QAccessible::installFactory(MakeInterface);
}

void SetSpoken(QWidget& widget, const SpokenText& text)
{
    const QString name = TextOf(text.name), description = TextOf(text.description);
    if (widget.accessibleName() != name) widget.setAccessibleName(name);
    if (widget.accessibleDescription() != description) widget.setAccessibleDescription(description);
}

void AnnounceNewText(QTextEdit& pane, const QString& before)
{
    if (!QAccessible::isActive()) return;
    QAccessibleTextUpdateEvent event(&pane, 0, before, pane.toPlainText());
    QAccessible::updateAccessibility(&event);
}

} // namespace selvane
