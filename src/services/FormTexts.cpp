#include "services/FormTexts.h"

#include "resources/StringTable.h"

#include <QAbstractButton>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QTextDocument>
#include <QVariant>

namespace {

int idProperty(const QWidget *control, const char *name)
{
    return control->property(name).toInt();
}

QLabel *labelOf(const QWidget *control)
{
    const QList<QLabel *> labels = control->window()->findChildren<QLabel *>();
    const auto found = std::find_if(labels.begin(), labels.end(),
                                    [control](const QLabel *label) { return label->buddy() == control; });
    return found == labels.end() ? nullptr : *found;
}

void nameForScreenReader(QWidget *control)
{
    if (const int id = idProperty(control, "accessibleTextId"))
        control->setAccessibleName(FormTexts::withoutMnemonic(resText(id)));
    else if (const QLabel *label = labelOf(control); label && control->accessibleName().isEmpty())
        control->setAccessibleName(FormTexts::withoutMnemonic(label->text()));
}

} // namespace

namespace FormTexts {

void apply(QWidget *form)
{
    QList<QWidget *> controls = form->findChildren<QWidget *>();
    controls.prepend(form);
    for (QWidget *control : controls) {
        if (const int id = idProperty(control, "textId"))
            setCaption(control, id);
        if (const int id = idProperty(control, "whatsThisId"))
            setWhatsThis(control, id);
        if (const int id = idProperty(control, "toolTipId"))
            control->setToolTip(resText(id));
    }
    for (QWidget *control : controls)
        nameForScreenReader(control);
    // The button of the title bar that begins What's This mode.
    const auto explained = [](const QWidget *control) { return idProperty(control, "whatsThisId") != 0; };
    if (qobject_cast<QDialog *>(form) && std::any_of(controls.begin(), controls.end(), explained))
        form->setWindowFlag(Qt::WindowContextHelpButtonHint);
}

void setCaption(QWidget *control, int textId)
{
    setCaption(control, resText(textId));
}

void setCaption(QWidget *control, const QString &text)
{
    if (control->isWindow())
        control->setWindowTitle(text);
    else if (auto *button = qobject_cast<QAbstractButton *>(control))
        button->setText(text);
    else if (auto *label = qobject_cast<QLabel *>(control))
        label->setText(text);
    else if (auto *group = qobject_cast<QGroupBox *>(control))
        group->setTitle(text);
}

void setWhatsThis(QWidget *control, int whatsThisId)
{
    control->setProperty("whatsThisId", whatsThisId);
    control->setWhatsThis(resText(whatsThisId));
}

void setHelpContextId(QWidget *form, int helpContextId)
{
    form->setProperty("helpContextId", helpContextId);
    for (QWidget *control : form->findChildren<QWidget *>()) {
        if (idProperty(control, "helpContextId"))
            control->setProperty("helpContextId", helpContextId);
    }
}

int helpContextId(const QWidget *control)
{
    for (; control; control = control->isWindow() ? nullptr : control->parentWidget()) {
        if (const int id = idProperty(control, "helpContextId"))
            return id;
    }
    return 0;
}

QString withoutMnemonic(const QString &caption)
{
    QString plain;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&') && ++i == caption.size())
            break;
        plain += caption[i];
    }
    return plain;
}

QString escapeMnemonic(const QString &text)
{
    QString escaped = text;
    return escaped.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

} // namespace FormTexts
