#include "qt/application_icon.h"

#include <QDir>

// The resource may stand in a library; the toolkit wants this call outside every namespace.
static void LoadResource()
{
    Q_INIT_RESOURCE(icons);
}

namespace selvane {

QIcon ApplicationIcon()
{
    LoadResource();
    QIcon icon;
    for (const QString& name : QDir(":/icons").entryList()) icon.addFile(":/icons/" + name);
    return icon;
}

} // namespace selvane
