#pragma once

#include "exchange/rules/archive/PackedStream.h"

#include <QXmlStreamReader>

/// The XML of a file that may have been made to do harm, read element by element: no document type, no depth beyond
/// what sheets need, no endless token. Anything else throws ReadFailure.
class XmlParts
{
public:
    /// stream must outlive the object.
    explicit XmlParts(PackedStream &stream);
    ~XmlParts();

    /// Goes to the next start or end of an element; text between is passed over. False at the end of the document.
    bool next();
    /// The same, but stops at text too.
    bool nextWithText();
    bool isStart() const { return m_xml.isStartElement(); }
    bool isText() const { return m_xml.isCharacters(); }
    /// Without the prefix.
    QStringView name() const { return m_xml.name(); }
    QStringView letters() const { return m_xml.text(); }
    /// How many elements are open, the one that begins or ends here among them.
    int depth() const { return m_depth; }

    /// By its name without the prefix; empty when there is none.
    QStringView attribute(QStringView name) const;
    /// As a number from 0 on; fallback when it is none.
    int number(QStringView name, int fallback) const;

    /// Passes over the element that begins here.
    void skip();
    /// The text within the element that begins here, without that of its elements; goes to its end.
    QString text();

private:
    class Guard;

    std::unique_ptr<Guard> m_guard;
    QXmlStreamReader m_xml;
    QXmlStreamAttributes m_attributes;
    int m_depth = 0;
};
