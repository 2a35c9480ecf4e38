#pragma once

#include "foundation/interface/InterfaceClasses.h"
#include "foundation/interface/InterfaceFile.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <QLineEdit>
#include <QPushButton>

namespace barquell::test {

/// A form around what it holds.
inline QByteArray form(const QByteArray &content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><ui version=\"4.0\"><class>Root</class>"
           "<widget class=\"QWidget\" name=\"Root\">" +
           content + "</widget></ui>";
}

/// A dynamic property with a text.
inline QByteArray says(const QByteArray &name, const QByteArray &text) {
    return "<property name=\"" + name + "\" stdset=\"0\"><string notr=\"true\">" + text +
           "</string></property>";
}

inline QByteArray widget(const QByteArray &className, const QByteArray &name,
                         const QByteArray &content = {}) {
    return "<widget class=\"" + className + "\" name=\"" + name + "\">" + content + "</widget>";
}

inline QByteArray action(const QByteArray &name, const QByteArray &content = {}) {
    return "<action name=\"" + name + "\">" + content + "</action>";
}

inline const QByteArray kController = says("objectClass", "Controller");

/// A layout with this inside, in a widget named "page".
inline QByteArray laidOut(const QByteArray &className, const QByteArray &content) {
    return widget("QWidget", "page",
                  "<layout class=\"" + className + "\" name=\"layout\">" + content + "</layout>");
}

inline QByteArray item(const QByteArray &attributes, const QByteArray &content) {
    return "<item " + attributes + ">" + content + "</item>";
}

inline QByteArray property(const QByteArray &name, const QByteArray &value) {
    return "<property name=\"" + name + "\">" + value + "</property>";
}

/// Who loads a file.
class Owner final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QPushButton *button MEMBER button)
    Q_PROPERTY(QObject *anything MEMBER anything)

public:
    Q_INVOKABLE void press(const QVariant &sender) {
        senders.append(sender.value<QObject *>());
        onPress();
    }
    Q_INVOKABLE bool validateMenuItem(QObject *item) {
        asked.append(item);
        return valid;
    }

    QPushButton *button = nullptr;
    QObject *anything = nullptr;
    QList<QObject *> senders;
    QList<QObject *> asked;
    std::function<void()> onPress = [] {};
    bool valid = true;
};

/// A controller as files make them.
class Controller final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QLineEdit *field MEMBER field)
    Q_PROPERTY(Controller *next MEMBER next)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QLineEdit *fixed READ fixed CONSTANT)

public:
    Q_INVOKABLE void awakeFromNib() {
        woken.append(objectName());
        fieldWhenWoken = field;
    }
    Q_INVOKABLE void press(const QVariant &sender) { senders.append(sender.value<QObject *>()); }
    QLineEdit *fixed() const { return nullptr; }

    static inline QStringList woken;

    QLineEdit *field = nullptr;
    QLineEdit *fieldWhenWoken = nullptr;
    Controller *next = nullptr;
    QString title;
    QList<QObject *> senders;
};

class FormTest : public testing::Test {
protected:
    FormTest() {
        place();
        InterfaceClasses::add<Controller>("Controller");
        InterfaceClasses::add<QObject>("Plain");
    }

    bool load(const QByteArray &content) {
        objects = loadInterface(form(content), &owner, &complaint);
        return objects.has_value();
    }

    /// Anywhere among what was loaded.
    template <typename Class>
    Class *find(const char *name) const {
        const QString wanted = QString::fromLatin1(name);
        for (const auto &object : *objects) {
            auto *found = object->objectName() == wanted ? qobject_cast<Class *>(object.get())
                                                         : object->findChild<Class *>(wanted);
            if (found) {
                return found;
            }
        }
        return nullptr;
    }

    LogCapture logged;
    QString complaint; ///< of what was loaded last in vain
    Owner owner;
    std::optional<TopLevelObjects> objects;
};

} // namespace barquell::test
