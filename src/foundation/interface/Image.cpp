#include "foundation/interface/Image.h"

#include "foundation/Log.h"

#include <QFile>

namespace barquell {

QIcon imageNamed(const QString &name) {
    const QString path = QStringLiteral(":/images/%1.svg").arg(name);
    if (!QFile::exists(path)) {
        log(QStringLiteral("The image \"%1\" is missing").arg(name));
        return {};
    }
    return QIcon(path);
}

} // namespace barquell
