#pragma once

#include <QWidget>

namespace barquell {

/// The translucent plate that carries a picture of the HUD and its text; in the colours of the palette, so it
/// follows light and dark. What lies outside its rounded corners stays clear.
class HUDPlate final : public QWidget {
    Q_OBJECT

public:
    explicit HUDPlate(QWidget *parent = nullptr);

    /// In points. macOS: the layer's cornerRadius.
    double cornerRadius() const { return _cornerRadius; }
    void setCornerRadius(double radius);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double _cornerRadius = 0;
};

} // namespace barquell
