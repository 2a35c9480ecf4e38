#pragma once

class QIcon;
class QString;
class QWidget;

namespace barquell {

/// A line image of the bundle in the colour of the text around it, light or dark. Null where there is none.
QIcon templateIcon(const QString &imageName);

/// Gives the buttons and toolbar items below the widget the icons that their interface file names in a
/// dynamic property `templateImage`.
void setTemplateIcons(QWidget &root);

} // namespace barquell
