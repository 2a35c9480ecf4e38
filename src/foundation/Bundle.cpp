#include "foundation/Bundle.h"

#include "foundation/Log.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace barquell {

namespace {

std::unique_ptr<QTranslator> loadCatalogue(const QLocale &locale) {
    auto catalogue = std::make_unique<QTranslator>();
    const bool loaded =
        catalogue->load(locale, QStringLiteral("barquell"), QStringLiteral("_"), QStringLiteral(":/strings"));
    return loaded ? std::move(catalogue) : nullptr;
}

struct Strings {
    Strings() : user(loadCatalogue(QLocale())), english(loadCatalogue(QLocale(QLocale::English))) {
        if (!english) {
            log(QStringLiteral("The English texts are missing from the program"));
        }
    }

    std::unique_ptr<QTranslator> user; ///< none where there is no catalogue of the user's language
    std::unique_ptr<QTranslator> english;
};

const Strings &strings() {
    static const Strings loaded;
    return loaded;
}

QString translated(const QTranslator *catalogue, const QByteArray &key) {
    return catalogue ? catalogue->translate("Bundle", key.constData()) : QString();
}

} // namespace

QString Bundle::mainBundleIdentifier() {
    return QStringLiteral("com.vexolith.barquell");
}

QString Bundle::localizedName() {
    return QStringLiteral("Barquell");
}

QString Bundle::localizedString(const QString &key) {
    const QByteArray utf8 = key.toUtf8();
    for (const auto *catalogue : {&strings().user, &strings().english}) {
        QString text = translated(catalogue->get(), utf8);
        if (!text.isEmpty()) {
            return text;
        }
    }
    return key;
}

void Bundle::localizeToolkit() {
    const auto &catalogue = strings().user;
    static QTranslator texts;
    if (catalogue && texts.load(QLocale(catalogue->language()), QStringLiteral("qtbase"), QStringLiteral("_"),
                                QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&texts);
    }
}

QString Bundle::format(const QString &format, const QString &argument) {
    QString text = format;
    const qsizetype place = text.indexOf(QStringLiteral("%@"));
    return place < 0 ? text : text.replace(place, 2, argument);
}

} // namespace barquell
