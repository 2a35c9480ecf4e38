#include "foundation/interface/InterfaceReader.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QMargins>
#include <QMetaEnum>
#include <QSpacerItem>

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

/// Numbers with commas between them.
template <typename Set>
void setStretches(QStringView numbers, Set set) {
    int place = 0;
    for (const QStringView number : numbers.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        set(place++, number.toInt());
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

template <typename Enum>
Enum valueNamed(const QVariant &name) {
    return static_cast<Enum>(QMetaEnum::fromType<Enum>().keysToValue(name.toString().toLatin1().constData()));
}

} // namespace

/// Where an item stands in its layout; in a row or column after the ones before it.
struct InterfaceReader::Place {
    int row;
    int column;
    int rows;
    int columns;
    Qt::Alignment alignment;

    explicit Place(const QXmlStreamAttributes &attributes)
        : row(attributes.value(QLatin1String("row")).toInt()),
          column(attributes.value(QLatin1String("column")).toInt()),
          rows(std::max(1, attributes.value(QLatin1String("rowspan")).toInt())),
          columns(std::max(1, attributes.value(QLatin1String("colspan")).toInt())) {
        const QString text = attributes.value(QLatin1String("alignment")).toString();
        if (!text.isEmpty()) {
            alignment = valueNamed<Qt::Alignment>(text);
        }
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
        setStretches(attributes.value(QLatin1String("columnstretch")),
                     [grid](int column, int stretch) { grid->setColumnStretch(column, stretch); });
        setStretches(attributes.value(QLatin1String("rowstretch")),
                     [grid](int row, int stretch) { grid->setRowStretch(row, stretch); });
    }
    QMargins margins(-1, -1, -1, -1); // the style's
    while (_xml.readNextStartElement()) {
        if (_xml.name() == QLatin1String("item")) {
            readItem(*layout, parent);
            continue;
        }
        const InterfaceProperty property = readInterfaceProperty(_xml);
        if (!setMeasure(*layout, margins, property.name, property.value.toInt())) {
            set(*layout, property);
        }
    }
    layout->setContentsMargins(margins);
    return layout;
}

void InterfaceReader::readItem(QLayout &layout, QWidget &parent) {
    const Place place(_xml.attributes());
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
    } else {
        readSpacer(layout, place);
    }
    _xml.skipCurrentElement();
}

void InterfaceReader::readSpacer(QLayout &layout, const Place &place) {
    const Head head = readHead();
    Qt::Orientation orientation = Qt::Horizontal;
    QSizePolicy::Policy along = QSizePolicy::Expanding;
    QSize size;
    for (const InterfaceProperty &property : head.properties) {
        if (property.name == "orientation") {
            orientation = valueNamed<Qt::Orientation>(property.value);
        } else if (property.name == "sizeType") {
            along = valueNamed<QSizePolicy::Policy>(property.value);
        } else if (property.name == "sizeHint") {
            size = property.value.toSize();
        }
    }
    const bool horizontal = orientation == Qt::Horizontal;
    place.put(layout, std::make_unique<QSpacerItem>(size.width(), size.height(),
                                                    horizontal ? along : QSizePolicy::Minimum,
                                                    horizontal ? QSizePolicy::Minimum : along));
}

} // namespace barquell
