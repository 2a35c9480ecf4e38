#include "foundation/interface/InterfaceText.h"

#include "foundation/Bundle.h"

#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace barquell {

namespace {

class Reading {
public:
    explicit Reading(const QByteArray &file) : _reader(file), _writer(&_text.xml) {}

    InterfaceText result() {
        while (!_reader.atEnd()) {
            _reader.readNext();
            if (_reader.isStartElement()) {
                begin();
            } else if (_reader.isEndElement()) {
                end();
            }
            if (!_reader.hasError()) {
                _writer.writeCurrentToken(_reader);
            }
        }
        if (_reader.hasError()) {
            _text.complaint =
                QStringLiteral("line %1: %2").arg(_reader.lineNumber()).arg(_reader.errorString());
        }
        return _text;
    }

private:
    void begin() {
        const QStringView element = _reader.name();
        const QXmlStreamAttributes attributes = _reader.attributes();
        if (_depth++ == 0 && element != QLatin1String("ui")) {
            _reader.raiseError(QStringLiteral("it is no form"));
        } else if (isObject(element)) {
            _objects.append(attributes.value(QLatin1String("name")).toString());
        } else if (element == QLatin1String("property") || element == QLatin1String("attribute")) {
            _property = attributes.value(QLatin1String("name")).toString();
            _isDynamic = attributes.value(QLatin1String("stdset")) == QLatin1String("0");
        } else if (element == QLatin1String("string")) {
            translate(attributes.value(QLatin1String("notr")) != QLatin1String("true"));
        }
    }

    void end() {
        --_depth;
        if (isObject(_reader.name())) {
            _objects.removeLast();
        }
    }

    /// Writes the element but for its end, which is then the current token.
    void translate(bool wanted) {
        _writer.writeCurrentToken(_reader);
        const QString text = _reader.readElementText();
        --_depth;
        if (_property == QLatin1String("objectClass") && !_objects.isEmpty()) {
            _text.objectClasses.insert(_objects.constLast(), text);
        }
        _writer.writeCharacters(wanted && !_isDynamic && !text.isEmpty() ? Bundle::localizedString(text)
                                                                         : text);
    }

    static bool isObject(QStringView element) {
        return element == QLatin1String("widget") || element == QLatin1String("action");
    }

    InterfaceText _text;
    QXmlStreamReader _reader;
    QXmlStreamWriter _writer;
    QStringList _objects; ///< that enclose what is being read
    QString _property;
    bool _isDynamic = false;
    int _depth = 0;
};

} // namespace

InterfaceText readInterfaceText(const QByteArray &file) {
    return Reading(file).result();
}

} // namespace barquell
