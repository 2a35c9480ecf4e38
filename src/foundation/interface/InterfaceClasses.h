#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QWidget;

namespace barquell {

/// The classes that interface files name. A room registers its own from one function that the program entry
/// calls, so the loader knows them by name and not by include. Main thread only.
class InterfaceClasses {
public:
    InterfaceClasses() = delete;

    /// Makes objects that are no widgets: controllers, tabs, links of a chain, menu items (QAction).
    using ObjectMaker = std::function<std::unique_ptr<QObject>()>;
    using WidgetMaker = std::function<std::unique_ptr<QWidget>(QWidget *parent)>;

    static void addObject(const QString &name, const ObjectMaker &make);
    static void addWidget(const QString &name, const WidgetMaker &make);

    /// For a class that is made without arguments, or for a widget with its parent alone.
    template <typename Class>
    static void add(const char *name);

    /// nullptr where no such class was registered.
    static std::unique_ptr<QObject> makeObject(const QString &name);
    static std::unique_ptr<QWidget> makeWidget(const QString &name, QWidget *parent);
};

template <typename Class>
void InterfaceClasses::add(const char *name) {
    if constexpr (std::is_base_of_v<QWidget, Class>) {
        addWidget(QString::fromLatin1(name), [](QWidget *parent) { return std::make_unique<Class>(parent); });
    } else {
        addObject(QString::fromLatin1(name), [] { return std::make_unique<Class>(); });
    }
}

} // namespace barquell
