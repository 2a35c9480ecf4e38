#pragma once

#include <QString>

namespace barquell {

/// The program's own bundle: who it is and the texts that it brings along. Texts are Qt Linguist catalogues
/// among the resources, ":/strings/barquell_LANGUAGE.qm".
class Bundle {
public:
    Bundle() = delete;

    /// "com.vexolith.barquell".
    static QString mainBundleIdentifier();

    /// The program's name as the user sees it.
    static QString localizedName();

    /// The text for a key in the user's language, else in English, else the key itself. A catalogue that is
    /// missing is said in one line, once. Main thread only.
    static QString localizedString(const QString &key);

    /// Lets Qt's own windows and menus (file dialogs, the edit menu of a text) speak the language that our
    /// texts are in, where the system has Qt's translations; never another one. Needs an application. Main
    /// thread only.
    static void localizeToolkit();

    /// A localized format with its one "%@" replaced once, literally; a format without one stays as it is.
    static QString format(const QString &format, const QString &argument);
};

} // namespace barquell
