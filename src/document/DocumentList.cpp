#include "document/DocumentList.h"

#include "resources/StringTable.h"

#include <algorithm>

namespace {

constexpr QSize FirstSize(640, 420);

} // namespace

DocumentList::DocumentList(const frmDoc::Shared &shared, QObject *parent)
    : QObject(parent)
    , m_shared(shared)
{
}

frmDoc *DocumentList::create()
{
    Q_EMIT aboutToCreate();
    auto *document = new frmDoc(m_shared);
    document->resize(FirstSize);
    document->setTag(m_slots++);
    m_open.push_back(document);
    Q_EMIT created(document);
    document->setUpGrid(document->size());
    return document;
}

QString DocumentList::nextUntitledCaption()
{
    QString caption;
    const auto isTaken = [&caption](const frmDoc *document) { return document->Caption() == caption; };
    do // a recovered document has brought its number along
        caption = resText(500) + QStringLiteral(" ") + QString::number(++m_untitled);
    while (std::any_of(m_open.begin(), m_open.end(), isTaken));
    return caption;
}

void DocumentList::remove(frmDoc *document)
{
    const auto place = std::find(m_open.begin(), m_open.end(), document);
    if (place == m_open.end())
        return;
    m_open.erase(place);
    if (m_shared.undo.belongsTo(document))
        m_shared.undo.clear();
    if (m_active == document)
        setActive(nullptr);
    Q_EMIT removed(document);
}

frmDoc *DocumentList::findByPath(const QString &path) const
{
    const QString lower = path.toLower();
    const auto found = std::find_if(m_open.begin(), m_open.end(), [&lower](const frmDoc *document) {
        return document->DocName().toLower() == lower;
    });
    return found == m_open.end() ? nullptr : *found;
}

void DocumentList::setActive(frmDoc *document)
{
    if (document == m_active || (!document && std::find(m_open.begin(), m_open.end(), m_active) != m_open.end()))
        return;
    m_active = document;
    if (document)
        document->activated();
    Q_EMIT activeChanged(document);
}
