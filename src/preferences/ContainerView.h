#pragma once

#include "preferences/ContainerLayout.h"

#include <QPointer>
#include <QWidget>

namespace barquell {

/// The content of a window that shows one of several views at a time, placed by a layout mode. The view stays
/// its owner's. It has no layout manager: a view keeps its own size where the mode says so. Main thread only.
class ContainerView : public QWidget {
    Q_OBJECT

public:
    explicit ContainerView(QWidget *parent = nullptr);
    ~ContainerView() override;
    Q_DISABLE_COPY_MOVE(ContainerView)

    QWidget *contentView() const { return _contentView; }

    /// The new view (or none) is placed before it appears, and shown.
    void setContentView(QWidget *view);
    void setContentView(QWidget *view, std::uint32_t mode);

    std::uint32_t contentLayoutMode() const { return _contentLayoutMode; }
    void setContentLayoutMode(std::uint32_t mode);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void _moveContentView();

    QPointer<QWidget> _contentView;
    std::uint32_t _contentLayoutMode = ContainerLayoutCenter;
};

} // namespace barquell
