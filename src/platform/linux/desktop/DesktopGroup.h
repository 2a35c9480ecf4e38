#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>

namespace barquell {

/// The keys and values of the group "Desktop Entry" in a file's text, as its specification writes them. The
/// first of a key counts; a value whose encoding is broken is empty.
class DesktopGroup {
public:
    explicit DesktopGroup(const QByteArray &text);

    bool contains(const QByteArray &key) const { return _values.contains(key); }
    QString text(const QByteArray &key) const;
    bool isTrue(const QByteArray &key) const { return _values.value(key) == "true"; }
    QStringList list(const QByteArray &key) const;

    /// In the first of the languages that the file has.
    QString localizedText(const QByteArray &key, const QStringList &languages) const;

    /// A text as a file writes it.
    static QByteArray escaped(const QString &text);

private:
    void add(const QByteArray &line);
    QString raw(const QByteArray &key) const;

    QHash<QByteArray, QByteArray> _values;
};

} // namespace barquell
