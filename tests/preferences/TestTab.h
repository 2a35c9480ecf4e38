#pragma once

#include "platform/KeyEvents.h"
#include "preferences/ContainerView.h"
#include "preferences/PreferencesTab.h"
#include "preferences/PreferencesWindowController.h"

#include <QHash>

#include <string>
#include <vector>

namespace barquell::test {

/// A tab that notes what happens to it, and what the window looked like then.
class TestTab final : public PreferencesTab {
    Q_OBJECT

public:
    void viewDidLoad() override {
        journal().push_back(identifier().toStdString() + " did load");
        view()->resize(sizes().value(identifier(), QSize(400, 150)));
    }

    void viewWillAppear() override {
        journal().push_back(identifier().toStdString() + " will appear");
        if (owner()) {
            selectedWhenAppearing = owner()->window()->selectedItemIdentifier();
            windowSizeWhenAppearing = owner()->window()->size();
            wasContent = owner()->window()->contentView()->contentView() == view();
            wasFirstResponder = owner()->window()->focusWidget() == view();
        }
    }

    ResizeConfiguration resizeConfiguration() const override { return configurations().value(identifier()); }

    bool handleWindowKeyDown(const KeyEvent &event) override {
        keys.push_back(event.charactersIgnoringModifiers);
        return usesKeys;
    }

    static std::vector<std::string> &journal() {
        static std::vector<std::string> entries;
        return entries;
    }
    static QHash<QString, QSize> &sizes() {
        static QHash<QString, QSize> all;
        return all;
    }
    static QHash<QString, ResizeConfiguration> &configurations() {
        static QHash<QString, ResizeConfiguration> all;
        return all;
    }

    QString selectedWhenAppearing;
    QSize windowSizeWhenAppearing;
    bool wasContent = false;
    bool wasFirstResponder = false;
    QStringList keys;
    bool usesKeys = false;
};

} // namespace barquell::test
