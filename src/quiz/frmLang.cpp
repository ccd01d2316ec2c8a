#include "quiz/frmLang.h"

#include "document/ctlGrid.h"
#include "document/frmDoc.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "resources/TextLanguage.h"
#include "services/FormTexts.h"
#include "services/rules/LanguageNames.h"

#include "ui_frmLang.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>

namespace {

constexpr int LanguageId = 901;
constexpr int NamesId = 14902;

} // namespace

frmLang::frmLang(frmDoc &document, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmLang>())
    , m_document(document)
{
    m_ui->setupUi(this);
    m_txtLang = {m_ui->txtLang0, m_ui->txtLang1};
    for (QLineEdit *box : m_txtLang) {
        box->installEventFilter(this);
        addArrow(box);
    }
    connect(m_ui->btnOK, &QPushButton::clicked, this, &frmLang::btnOK_Click);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    Form_Load();
}

frmLang::~frmLang() = default;

void frmLang::Form_Load()
{
    setWindowIcon(m_document.windowIcon());
    m_ui->lblLang0->setText(resText(LanguageId) + QStringLiteral(" &1"));
    m_ui->lblLang1->setText(resText(LanguageId) + QStringLiteral(" &2"));
    FormTexts::apply(this);
    for (size_t i = 0; i < m_txtLang.size(); ++i) {
        m_loadedNames[i] = m_document.Rutor()->TextMatrix(0, int(i) + 1);
        m_txtLang[i]->setText(m_loadedNames[i]);
    }
}

void frmLang::btnOK_Click()
{
    for (size_t i = 0; i < m_txtLang.size(); ++i) {
        const QString typed = m_txtLang[i]->text();
        m_document.Rutor()->setTextMatrix(0, int(i) + 1, typed.isEmpty() ? m_loadedNames[i] : typed);
    }
    m_document.refreshQuizMode();
    m_document.setDirty(true);
    accept();
}

void frmLang::addArrow(QLineEdit *box)
{
    const QAction *arrow = box->addAction(picture(PictureChoices), QLineEdit::TrailingPosition);
    const_cast<QAction *>(arrow)->setText(resText(NamesId));
    connect(arrow, &QAction::triggered, this, [this, box] { offerNames(box); });
    connect(box, &QLineEdit::textEdited, this, [this, box] {
        if (m_names && m_names->popup()->isVisible())
            offerNames(box);
    });
}

/// The names that begin as the box does, all if none does or its text is selected as a whole.
void frmLang::offerNames(QLineEdit *box)
{
    if (!m_names) {
        m_names = new QCompleter(LanguageNames(TextLanguage::inUse(), LanguageNames::InList).all(), this);
        m_names->setCaseSensitivity(Qt::CaseInsensitive);
        connect(m_names, qOverload<const QString &>(&QCompleter::activated), this,
                [this](const QString &name) { static_cast<QLineEdit *>(m_names->widget())->setText(name); });
    }
    m_names->setWidget(box);
    m_names->setCompletionPrefix(box->selectedText() == box->text() ? QString() : box->text());
    if (m_names->completionCount() == 0)
        m_names->setCompletionPrefix({});
    m_names->complete();
}

bool frmLang::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QLineEdit *>(watched);
    if (box && event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Down) {
        offerNames(box);
        return true;
    }
    if (!box || event->type() != QEvent::FocusIn)
        return QDialog::eventFilter(watched, event);
    const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
    // The click that brought the focus would take the selection away; what is typed must not come before it. After a
    // menu of its own the box goes on where it was.
    if (reason == Qt::MouseFocusReason)
        QMetaObject::invokeMethod(box, &QLineEdit::selectAll, Qt::QueuedConnection);
    else if (reason != Qt::PopupFocusReason)
        box->selectAll();
    return QDialog::eventFilter(watched, event);
}
