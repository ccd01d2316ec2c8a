#include "widgets/LinkList.h"

#include "resources/TextLanguage.h"
#include "services/FormTexts.h"
#include "services/desktop/Contrast.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Margin = 3; // pixels around a link's text

class LinkAccessible : public QAccessibleWidget
{
public:
    explicit LinkAccessible(LinkButton *link)
        : QAccessibleWidget(link, QAccessible::Link)
    {
    }
    QString text(QAccessible::Text what) const override
    {
        const bool isCaption = what == QAccessible::Name && link()->accessibleName().isEmpty();
        return isCaption ? link()->text() : QAccessibleWidget::text(what);
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString &name) override
    {
        if (name == pressAction())
            link()->animateClick(); // what it opens must not keep the reader waiting
        else
            QAccessibleWidget::doAction(name);
    }

private:
    LinkButton *link() const { return static_cast<LinkButton *>(widget()); }
};

QAccessibleInterface *create(const QString &, QObject *object)
{
    auto *link = qobject_cast<LinkButton *>(object);
    return link ? new LinkAccessible(link) : nullptr;
}

void installAccessible()
{
    static const bool installed = (QAccessible::installFactory(create), true);
    Q_UNUSED(installed)
}

QLabel *headingLabel(const QString &heading)
{
    auto *label = new QLabel(heading);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setMargin(Margin);
    return label;
}

} // namespace

LinkButton::LinkButton(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
    installAccessible();
    setFlat(true);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

QSize LinkButton::sizeHint() const
{
    layOut();
    return m_size;
}

void LinkButton::layOut() const
{
    if (m_size.isValid())
        return;
    QTextOption option;
    option.setTextDirection(layoutDirection());
    m_shape.setTextOption(option);
    m_shape.setTextFormat(Qt::PlainText);
    m_shape.setText(TextLanguage::isolated(text()));
    m_shape.prepare({}, font());
    const QSizeF size = m_shape.size();
    m_size = QSize(int(std::ceil(size.width())), int(std::ceil(size.height()))) + QSize(2 * Margin, 2 * Margin);
}

void LinkButton::changeEvent(QEvent *event)
{
    m_size = {};
    QPushButton::changeEvent(event);
}

void LinkButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Contrast::readable(palette().color(QPalette::Link), palette()));
    drawText(painter);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

/// The line below it is no part of a laid out text.
void LinkButton::drawText(QPainter &painter) const
{
    if (underMouse() || hasFocus()) {
        QFont underlined = font();
        underlined.setUnderline(true);
        painter.setFont(underlined);
        painter.drawText(rect().adjusted(Margin, 0, -Margin, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                         TextLanguage::isolated(text()));
    } else {
        layOut();
        painter.drawStaticText(Margin, Margin, m_shape);
    }
}

void LinkButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

LinkList::LinkList(const QString &heading, QWidget *parent)
    : QWidget(parent)
    , m_heading(heading)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(headingLabel(heading), 0, Qt::AlignLeading);
    setAccessibleName(heading);
}

void LinkList::setLinks(const std::vector<Link> &links)
{
    for (LinkButton *link : std::exchange(m_links, {})) {
        link->hide();
        link->deleteLater(); // it may be the one that was clicked
    }
    for (const Link &link : links)
        add(link);
    setVisible(!links.empty());
    if (!links.empty())
        setStop(0);
}

void LinkList::add(const Link &link)
{
    auto *button = new LinkButton(link.text, this);
    button->setAccessibleDescription(m_heading);
    if (!link.toolTip.isEmpty()) {
        button->setToolTip(FormTexts::plainToolTip(link.toolTip));
        button->setAccessibleName(link.toolTip);
    }
    FormTexts::setWhatsThis(button, link.whatsThisId);
    button->installEventFilter(this);
    connect(button, &LinkButton::clicked, this, link.run);
    m_layout->addWidget(button);
    m_links.push_back(button);
}

void LinkList::setStop(size_t index)
{
    for (size_t i = 0; i < m_links.size(); ++i)
        m_links[i]->setFocusPolicy(i == index ? Qt::StrongFocus : Qt::ClickFocus);
}

bool LinkList::goFrom(size_t index, int key)
{
    size_t to = index;
    if (key == Qt::Key_Down)
        to = std::min(index + 1, m_links.size() - 1);
    else if (key == Qt::Key_Up)
        to = index - std::min<size_t>(index, 1);
    else if (key == Qt::Key_Home)
        to = 0;
    else if (key == Qt::Key_End)
        to = m_links.size() - 1;
    else
        return false;
    m_links[to]->setFocus(Qt::OtherFocusReason);
    return true;
}

bool LinkList::eventFilter(QObject *watched, QEvent *event)
{
    const auto link = std::find(m_links.begin(), m_links.end(), watched);
    if (link == m_links.end())
        return false;
    const auto index = size_t(link - m_links.begin());
    if (event->type() == QEvent::FocusIn)
        setStop(index);
    return event->type() == QEvent::KeyPress && goFrom(index, static_cast<QKeyEvent *>(event)->key());
}
