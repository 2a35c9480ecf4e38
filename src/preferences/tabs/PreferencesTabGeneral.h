#pragma once

#include "preferences/PreferencesTab.h"

#include <QAbstractButton>

namespace barquell {

/// Start, presence, quitting, and the way to the rating prompt while it is offered.
class PreferencesTabGeneral final : public PreferencesTab {
    Q_OBJECT
    Q_PROPERTY(QAbstractButton *likeTheAppButton READ likeTheAppButton WRITE setLikeTheAppButton)

public:
    using PreferencesTab::PreferencesTab;

    void viewDidLoad() override;
    void viewWillAppear() override;

    void updateLikeTheAppButton();
    Q_INVOKABLE void likeTheAppDidPress(const QVariant &sender);

    QAbstractButton *likeTheAppButton() const { return _likeTheAppButton; }
    void setLikeTheAppButton(QAbstractButton *button) { _likeTheAppButton = button; }

private:
    QPointer<QAbstractButton> _likeTheAppButton;
};

} // namespace barquell
