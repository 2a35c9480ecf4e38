#pragma once

#include "foundation/interface/InterfaceFile.h"

#include <QIcon>
#include <QLabel>
#include <QPointer>

#include <memory>
#include <optional>

namespace barquell {

/// One row of the apps' list: an app's name and icon. They are looked up when it is made; its view when it is
/// first asked for, since a list may be long. Main thread only.
class AppRuleItemViewController final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QWidget *view READ view WRITE setView)
    Q_PROPERTY(QLabel *textField READ textField WRITE setTextField)
    Q_PROPERTY(QLabel *imageView READ imageView WRITE setImageView)

public:
    /// Without an identifier the row is "???".
    static std::unique_ptr<AppRuleItemViewController>
    newWithNBundleIdentifier(const std::optional<QString> &bundleIdentifier);

    const QString &name() const { return _name; }
    QIcon icon() const;

    /// nullptr, as the others, where the interface file fails.
    QWidget *view();
    QLabel *textField();
    QLabel *imageView();
    void setView(QWidget *view) { _view = view; }
    void setTextField(QLabel *textField) { _textField = textField; }
    void setImageView(QLabel *imageView) { _imageView = imageView; }

private:
    explicit AppRuleItemViewController(const std::optional<QString> &bundleIdentifier);

    void loadOnce();

    QString _name;
    QString _path;           ///< of the app; empty where it is not found
    bool _isUnknown = false; ///< has no identifier
    bool _isLoaded = false;
    TopLevelObjects _topLevelObjects;
    QPointer<QWidget> _view;
    QPointer<QLabel> _textField;
    QPointer<QLabel> _imageView;
};

} // namespace barquell
