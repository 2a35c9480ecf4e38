#include "foundation/interface/InterfaceReader.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QMargins>
#include <QScopedValueRollback>
#include <QSpacerItem>

#include <algorithm>

namespace barquell {

namespace {

std::unique_ptr<QLayout> makeLayout(const QString &className) {
    if (className == QLatin1String("QGridLayout")) {
        return std::make_unique<QGridLayout>();
    }
    if (className == QLatin1String("QHBoxLayout")) {
        return std::make_unique<QHBoxLayout>();
    }
    return className == QLatin1String("QVBoxLayout") ? std::make_unique<QVBoxLayout>() : nullptr;
}

constexpr int kMostCells = 99; // in a row or column of a grid

/// Numbers with commas between them.
template <typename Set>
void setStretches(QXmlStreamReader &reader, QStringView numbers, Set set) {
    if (numbers.isEmpty()) {
        return;
    }
    int place = 0;
    for (const QStringView number : numbers.split(QLatin1Char(','))) {
        set(place++, numberFrom(reader, number));
    }
}

/// What is no property of layouts for Qt; false where it is one.
bool setMeasure(QLayout &layout, QMargins &margins, const QByteArray &name, int width) {
    auto *grid = qobject_cast<QGridLayout *>(&layout);
    if (name == "leftMargin") {
        margins.setLeft(width);
    } else if (name == "topMargin") {
        margins.setTop(width);
    } else if (name == "rightMargin") {
        margins.setRight(width);
    } else if (name == "bottomMargin") {
        margins.setBottom(width);
    } else if (grid && name == "horizontalSpacing") {
        grid->setHorizontalSpacing(width);
    } else if (grid && name == "verticalSpacing") {
        grid->setVerticalSpacing(width);
    } else {
        return false;
    }
    return true;
}

} // namespace

/// Where an item stands in its layout; in a row or column after the ones before it.
struct InterfaceReader::Place {
    int row;
    int column;
    int rows;
    int columns;
    Qt::Alignment alignment;

    /// The reader is at the item. What lies outside of a grid is an error of the reader.
    explicit Place(QXmlStreamReader &reader)
        : row(cells(reader, QLatin1String("row"), 0)), column(cells(reader, QLatin1String("column"), 0)),
          rows(cells(reader, QLatin1String("rowspan"), 1)),
          columns(cells(reader, QLatin1String("colspan"), 1)) {
        const QString text = reader.attributes().value(QLatin1String("alignment")).toString();
        if (!text.isEmpty()) {
            alignment = valueNamed<Qt::Alignment>(reader, text);
        }
    }

    static int cells(QXmlStreamReader &reader, QLatin1String name, int least) {
        if (!reader.attributes().hasAttribute(name)) {
            return least;
        }
        const int number = numberFrom(reader, reader.attributes().value(name));
        if (!reader.hasError() && (number < least || number > kMostCells)) {
            reader.raiseError(QStringLiteral("%1 is not from %2 to %3").arg(name).arg(least).arg(kMostCells));
        }
        return std::clamp(number, least, kMostCells);
    }

    void put(QLayout &layout, QWidget &widget) const {
        if (auto *grid = qobject_cast<QGridLayout *>(&layout)) {
            grid->addWidget(&widget, row, column, rows, columns, alignment);
        } else if (auto *box = qobject_cast<QBoxLayout *>(&layout)) {
            box->addWidget(&widget, 0, alignment);
        }
    }

    void put(QLayout &layout, std::unique_ptr<QLayout> inner) const {
        if (auto *grid = qobject_cast<QGridLayout *>(&layout)) {
            grid->addLayout(inner.release(), row, column, rows, columns, alignment);
        } else if (auto *box = qobject_cast<QBoxLayout *>(&layout)) {
            box->addLayout(inner.release());
        }
    }

    void put(QLayout &layout, std::unique_ptr<QSpacerItem> spacer) const {
        if (auto *grid = qobject_cast<QGridLayout *>(&layout)) {
            grid->addItem(spacer.release(), row, column, rows, columns, alignment);
        } else {
            layout.addItem(spacer.release());
        }
    }
};

std::unique_ptr<QLayout> InterfaceReader::readLayout(QWidget &parent) {
    const QXmlStreamAttributes attributes = _xml.attributes();
    const QString className = attributes.value(QLatin1String("class")).toString();
    std::unique_ptr<QLayout> layout = makeLayout(className);
    if (!layout || parent.layout()) {
        complain(QStringLiteral("%1 can not have a layout %2").arg(parent.objectName(), className));
        return nullptr;
    }
    layout->setObjectName(attributes.value(QLatin1String("name")).toString());
    if (auto *grid = qobject_cast<QGridLayout *>(layout.get())) {
        setStretches(_xml, attributes.value(QLatin1String("columnstretch")),
                     [grid](int column, int stretch) { grid->setColumnStretch(column, stretch); });
        setStretches(_xml, attributes.value(QLatin1String("rowstretch")),
                     [grid](int row, int stretch) { grid->setRowStretch(row, stretch); });
    }
    QMargins margins(-1, -1, -1, -1); // the style's
    while (_xml.readNextStartElement()) {
        if (_xml.name() == QLatin1String("item")) {
            readItem(*layout, parent);
            continue;
        }
        if (_xml.name() != QLatin1String("property")) {
            complain(QStringLiteral("a layout holds an unknown element %1").arg(_xml.name()));
            break;
        }
        const InterfaceProperty property = readInterfaceProperty(_xml);
        if (!setMeasure(*layout, margins, property.name, property.value.toInt())) {
            set(*layout, property);
        } else if (property.value.typeId() != QMetaType::Int) {
            complain(QStringLiteral("%1 is no number").arg(QString::fromUtf8(property.name)));
        }
    }
    layout->setContentsMargins(margins);
    return layout;
}

void InterfaceReader::readItem(QLayout &layout, QWidget &parent) {
    const QScopedValueRollback<int> deeper(_depth, _depth + 1);
    const Place place(_xml);
    if (isTooDeep()) {
        return;
    }
    if (!_xml.readNextStartElement()) {
        complain(QStringLiteral("an item of %1 holds nothing").arg(layout.objectName()));
    } else if (_xml.name() == QLatin1String("widget")) {
        if (QWidget *widget = readWidget(parent)) {
            place.put(layout, *widget);
        }
    } else if (_xml.name() == QLatin1String("layout")) {
        if (std::unique_ptr<QLayout> inner = readLayout(parent)) {
            place.put(layout, std::move(inner));
        }
    } else if (_xml.name() == QLatin1String("spacer")) {
        readSpacer(layout, place);
    } else {
        complain(QStringLiteral("an item of %1 holds an unknown element %2")
                     .arg(layout.objectName(), _xml.name()));
    }
    if (_xml.readNextStartElement()) {
        complain(QStringLiteral("an item of %1 holds more than one thing").arg(layout.objectName()));
    }
}

void InterfaceReader::readSpacer(QLayout &layout, const Place &place) {
    const Head head = readHead();
    Qt::Orientation orientation = Qt::Horizontal;
    QSizePolicy::Policy along = QSizePolicy::Expanding;
    QSize size;
    bool isKnown = !head.hasParts && head.objectClass.isEmpty();
    for (const InterfaceProperty &property : head.properties) {
        if (property.name == "orientation") {
            orientation = valueNamed<Qt::Orientation>(_xml, property.value.toString());
        } else if (property.name == "sizeType") {
            along = valueNamed<QSizePolicy::Policy>(_xml, property.value.toString());
        } else if (property.name == "sizeHint" && property.value.typeId() == QMetaType::QSize) {
            size = property.value.toSize();
        } else {
            isKnown = false;
        }
    }
    if (!isKnown) {
        complain(QStringLiteral("the spacer %1 says what no spacer has").arg(head.name));
    }
    const bool horizontal = orientation == Qt::Horizontal;
    place.put(layout, std::make_unique<QSpacerItem>(size.width(), size.height(),
                                                    horizontal ? along : QSizePolicy::Minimum,
                                                    horizontal ? QSizePolicy::Minimum : along));
}

} // namespace barquell
