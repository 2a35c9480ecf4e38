#pragma once

#include <QHash>
#include <QSet>
#include <QUiLoader>

#include <vector>

class QIODevice;

namespace barquell {

/// Makes the objects of one interface file, ours among them, and wires nothing yet.
class InterfaceLoader final : public QUiLoader {
public:
    /// The classes that the file gives to actions and placeholders, by the object's name.
    explicit InterfaceLoader(QHash<QString, QString> objectClasses);

    /// The holder of everything; what was wrong with the file is in complaint() then.
    std::unique_ptr<QWidget> make(QIODevice &file);

    /// What the file names, in its order; what widgets are made of inside is not among it.
    const std::vector<QObject *> &objects() const { return _objects; }

    /// Empty where all went well.
    const QString &complaint() const { return _complaint; }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override;
    QAction *createAction(QObject *parent, const QString &name) override;

private:
    class WithoutPlugins;

    InterfaceLoader(QHash<QString, QString> objectClasses, const WithoutPlugins &during);

    void complain(const QString &what);
    std::unique_ptr<QWidget> makeWidget(const QString &className, QWidget *parent, const QString &name);
    std::unique_ptr<QAction> makeAction(const QString &className, QObject *parent);
    QObject *replacePlaceholder(QObject *placeholder);

    const QHash<QString, QString> _objectClasses;
    const QSet<QString> _widgetsOfQt;
    std::vector<QObject *> _objects;
    QString _complaint;
};

} // namespace barquell
