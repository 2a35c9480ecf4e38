#include "platform/linux/desktop/DesktopGroup.h"

#include <QStringDecoder>

namespace barquell {

namespace {

QString unescaped(const QString &text) {
    static const QHash<QChar, QChar> meanings{{QLatin1Char('s'), QLatin1Char(' ')},
                                              {QLatin1Char('n'), QLatin1Char('\n')},
                                              {QLatin1Char('t'), QLatin1Char('\t')},
                                              {QLatin1Char('r'), QLatin1Char('\r')}};
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool escapes = text.at(i) == QLatin1Char('\\') && i + 1 < text.size();
        const QChar character = text.at(escapes ? ++i : i);
        plain += escapes ? meanings.value(character, character) : character;
    }
    return plain;
}

} // namespace

DesktopGroup::DesktopGroup(const QByteArray &text) {
    bool inGroup = false;
    for (const QByteArray &line : text.split('\n')) {
        const QByteArray trimmed = line.trimmed();
        if (trimmed.startsWith('[')) {
            inGroup = trimmed == "[Desktop Entry]";
        } else if (inGroup && !trimmed.startsWith('#')) {
            add(trimmed);
        }
    }
}

void DesktopGroup::add(const QByteArray &line) {
    const qsizetype equals = line.indexOf('=');
    if (equals > 0) {
        const QByteArray key = line.left(equals).trimmed();
        if (!_values.contains(key)) {
            _values.insert(key, line.mid(equals + 1).trimmed());
        }
    }
}

QString DesktopGroup::raw(const QByteArray &key) const {
    QStringDecoder decode(QStringDecoder::Utf8);
    const QString text = decode(_values.value(key));
    return decode.hasError() ? QString() : text;
}

QString DesktopGroup::text(const QByteArray &key) const {
    return unescaped(raw(key));
}

QStringList DesktopGroup::list(const QByteArray &key) const {
    return raw(key).split(QLatin1Char(';'), Qt::SkipEmptyParts);
}

QString DesktopGroup::localizedText(const QByteArray &key, const QStringList &languages) const {
    for (const QString &language : languages) {
        QString localized = text(key + '[' + language.toUtf8() + ']');
        if (!localized.isEmpty()) {
            return localized;
        }
    }
    return text(key);
}

QByteArray DesktopGroup::escaped(const QString &text) {
    QByteArray written = text.toUtf8();
    written.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r").replace('\t', "\\t");
    return written;
}

} // namespace barquell
