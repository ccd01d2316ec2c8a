#include "services/DialogHelp.h"
#include "services/clsHtmlHelp.h"
#include "support/RecordingHelp.h"
#include "support/ScriptedAlertBox.h"

#include <QDialog>
#include <QMenu>
#include <QSpinBox>
#include <QWhatsThis>

namespace {

/// A dialog with two boxes that have a topic and a text, and a label that lets the mouse through.
struct HtmlHelpTest : ::testing::Test
{
    RecordingHelp help;
    ScriptedAlertBox alert;
    DialogHelp dialogHelp{help, alert, HelpTarget::ofProgram()};
    QDialog dialog;
    QLineEdit *first = box<QLineEdit>(10, 1160, 20044);
    QSpinBox *second = box<QSpinBox>(50, 1170, 20052);
    QLabel *drawn = box<QLabel>(90, 0, 20045);
    QPushButton *plain = box<QPushButton>(130, 0, 0);

    template <typename Control> Control *box(int y, int topic, int text)
    {
        auto *control = new Control(&dialog);
        control->setGeometry(10, y, 100, 30);
        control->setProperty("helpContextId", topic);
        control->setProperty("whatsThisId", text);
        return control;
    }
    void show()
    {
        dialog.setProperty("helpContextId", 1200);
        drawn->setAttribute(Qt::WA_TransparentForMouseEvents);
        dialog.resize(200, 200);
        dialog.show();
        QApplication::setActiveWindow(&dialog);
    }
    RecordingHelp::Call topic(int id) { return {QStringLiteral("Main"), HH_HELP_CONTEXT, id}; }
    void click(const QPoint &point)
    {
        QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, point);
        QCoreApplication::processEvents();
    }
};

TEST_F(HtmlHelpTest, F1OpensTheTopicOfTheFocusedControl)
{
    show();
    first->setFocus();
    QTest::keyClick(first, Qt::Key_F1);
    second->setFocus();
    QTest::keyClick(second, Qt::Key_F1);
    plain->setFocus();
    QTest::keyClick(plain, Qt::Key_F1);
    EXPECT_EQ(help.calls, (std::vector{topic(1160), topic(1170), topic(1200)}));
    EXPECT_TRUE(help.popUps.empty());
}

TEST_F(HtmlHelpTest, WhatsThisExplainsTheClickedControlAndEnds)
{
    show();
    // A control's inner parts belong to it; a point without a text ends the mode as well.
    const std::vector<std::pair<QPoint, std::vector<int>>> clicks{
        {{20, 20}, {20044}}, {{20, 65}, {20052}}, {{20, 100}, {20045}}, {{20, 140}, {}}, {{180, 180}, {}}};
    auto *object = dialog.findChild<clsHtmlHelp *>();
    ASSERT_TRUE(object);
    for (const auto &[point, texts] : clicks) {
        QTest::keyClick(first, Qt::Key_F1, Qt::ShiftModifier);
        EXPECT_TRUE(object->WhatsThisMode() && QWhatsThis::inWhatsThisMode());
        help.popUps.clear();
        click(point);
        EXPECT_EQ(help.popUps, texts) << point.y();
        EXPECT_FALSE(object->WhatsThisMode() || QWhatsThis::inWhatsThisMode());
    }
    drawn->hide();
    dialog.setProperty("whatsThisId", 20043);
    QWhatsThis::enterWhatsThisMode();
    help.popUps.clear();
    click({20, 100});
    EXPECT_EQ(help.popUps, std::vector{20043}) << "instead of a hidden control the dialog explains itself";
    EXPECT_TRUE(help.calls.empty());
}

TEST_F(HtmlHelpTest, WithUseEventTheOwnerAnswers)
{
    show();
    auto *object = dialog.findChild<clsHtmlHelp *>();
    object->setUseEvent(true);
    std::vector<HelpInfo> requests;
    QPoint place;
    QObject::connect(object, &clsHtmlHelp::HelpRequest, [&](int x, int y, const HelpInfo &info) {
        requests.push_back(info);
        place = QPoint(x, y);
    });
    QTest::keyClick(first, Qt::Key_F1);
    QWhatsThis::enterWhatsThisMode();
    click({30, 25});
    EXPECT_EQ(place, QPoint(30, 25));
    QMenu menu(&dialog);
    menu.setProperty("helpContextId", 1060);
    menu.popup(QPoint(0, 0));
    QTest::keyClick(&menu, Qt::Key_F1);
    EXPECT_FALSE(menu.isVisible());
    ASSERT_EQ(requests.size(), 3u);
    EXPECT_TRUE(requests[0].kind == HelpInfo::Window && !requests[0].whatsThis);
    EXPECT_TRUE(requests[1].kind == HelpInfo::Window && requests[1].whatsThis);
    EXPECT_TRUE(requests[2].kind == HelpInfo::MenuItem && requests[2].contextId == 1060);
    EXPECT_TRUE(help.calls.empty() && help.popUps.empty());
}

TEST_F(HtmlHelpTest, ATextThatDoesNotExistIsReportedOnce)
{
    first->setProperty("whatsThisId", 20999);
    show();
    dialog.hide();
    dialog.show();
    EXPECT_EQ(alert.onlyPrompt(), QStringLiteral("Unexpected Error Assigning HelpIDs"));
}

} // namespace
