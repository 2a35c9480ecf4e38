#include "app/replay/ReplayArguments.h"

#include "foundation/Values.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace barquell::replay {

namespace {

QVariant parsed(const QString &text) {
    const QString lower = text.toLower();
    if (lower == QLatin1String("true") || lower == QLatin1String("yes")) {
        return true;
    }
    if (lower == QLatin1String("false") || lower == QLatin1String("no")) {
        return false;
    }
    bool isInteger = false;
    const qlonglong integer = text.toLongLong(&isInteger);
    if (isInteger) {
        return integer;
    }
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    return document.isArray() ? QVariant(document.array().toVariantList()) : QVariant(text);
}

} // namespace

QString assign(ReplaySettings &settings, const QString &assignment) {
    const auto equals = assignment.indexOf(QLatin1Char('='));
    if (equals <= 0) {
        return QStringLiteral("--set takes KEY=VALUE, not '%1'").arg(assignment);
    }
    const QString key = assignment.left(equals);
    const QVariant value = parsed(assignment.mid(equals + 1));
    if (key == QLatin1String("trusted")) {
        if (value.typeId() != QMetaType::Bool) {
            return QStringLiteral("trusted is true or false");
        }
        settings.trusted = value.toBool();
    } else if (key == QLatin1String("pauseFlags")) {
        const qlonglong flags = value.toLongLong();
        if (value.typeId() != QMetaType::LongLong || flags < 0 || flags > 0xFFFFFFFFLL) {
            return QStringLiteral("pauseFlags is a number of 32 bits");
        }
        settings.pauseFlags = static_cast<std::uint32_t>(flags);
    } else if (const auto storable = storableValue(value)) {
        settings.stored.insert(key, *storable);
    } else {
        return QStringLiteral("%1 cannot have this value").arg(key);
    }
    return {};
}

} // namespace barquell::replay
