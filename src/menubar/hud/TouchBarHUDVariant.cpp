#include "menubar/hud/TouchBarHUDVariant.h"

namespace barquell {

void TouchBarHUDVariant::awakeFromNib() {
    for (HUDPlate *view : {smallView(), largeView()}) {
        if (view) {
            view->move(0, 0);
            view->setCornerRadius(20);
        }
    }
}

} // namespace barquell
