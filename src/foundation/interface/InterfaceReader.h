#pragma once

#include "foundation/interface/InterfaceProperty.h"

#include <QString>
#include <QXmlStreamReader>

#include <memory>
#include <vector>

class QLayout;
class QWidget;

namespace barquell {

/// Makes the objects of one interface file, ours among them, and wires nothing yet. It reads what our files
/// use of Qt Designer's language: Qt's own reader of forms (QtUiTools) brings OpenGL along and looks for
/// plugins of Designer, which would be a twentieth of this program's memory.
class InterfaceReader {
public:
    explicit InterfaceReader(const QByteArray &file) : _xml(file) {}

    /// The holder of everything; what is wrong with the file is in complaint() afterwards.
    std::unique_ptr<QWidget> read();

    /// What the file names, in its order; what widgets are made of inside is not among it.
    const std::vector<QObject *> &objects() const { return _objects; }

    /// Empty where all went well.
    QString complaint() const;

private:
    /// What a file says of an object before it comes to its parts.
    struct Head {
        QString className; ///< of the element
        QString name;
        QString objectClass; ///< that takes its place; empty for none
        std::vector<InterfaceProperty> properties;
        bool hasParts = false; ///< the reader is at the first of them
    };
    struct Place; // in a layout
    struct Later {
        QWidget *widget;
        QString name;
    };

    Head readHead();
    QWidget *readWidget(QWidget &parent);
    void readObject(const Head &head, QWidget &parent);
    void readPart(QWidget &widget);
    void readAction(QWidget &parent);
    void readChoice(QWidget &widget);
    std::unique_ptr<QLayout> readLayout(QWidget &parent);
    void readItem(QLayout &layout, QWidget &parent);
    void readSpacer(QLayout &layout, const Place &place);

    void named(QObject &object, const Head &head);
    void set(QObject &object, const InterfaceProperty &property);
    void connectLater();
    QObject *objectNamed(const QString &name) const;
    bool isTooDeep();
    void complain(const QString &what);

    QXmlStreamReader _xml;
    int _depth = 0; ///< of parts within parts
    std::vector<QObject *> _objects;
    std::vector<Later> _actions; ///< of menus and tool bars, by name
    std::vector<Later> _buddies; ///< of labels
};

} // namespace barquell
