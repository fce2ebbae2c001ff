#include "qt/application_icon.h"

#include <QDir>
#include <QPixmap>

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
    // Finding out that a file is what its name says would load all decoders of the machine.
    for (const QString& file : QDir(":/icons").entryList())
        icon.addPixmap(QPixmap(":/icons/" + file, "PNG"));
    return icon;
}

} // namespace selvane
