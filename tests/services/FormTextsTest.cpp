#include "services/FormTexts.h"

#include "resources/StringTable.h"

TEST(FormTexts, ComeFromTheIdsOfControlsAndNameThem)
{
    for (const bool explained : {true, false}) {
        QDialog dialog;
        QGroupBox group(&dialog);
        QLabel label(&group);
        QLineEdit line(&group), named(&dialog);
        QPushButton button(&dialog);
        label.setBuddy(&line);
        const std::tuple<QWidget *, const char *, int> ids[] = {
            {&dialog, "textId", 915},    {&group, "textId", 911},      {&label, "textId", 920},
            {&button, "textId", 921},    {&button, "toolTipId", 922},  {&named, "accessibleTextId", 920},
            {&line, "helpContextId", 1}, {&dialog, "helpContextId", 1}};
        for (const auto &[control, property, id] : ids)
            control->setProperty(property, id);
        if (explained)
            button.setProperty("whatsThisId", 20088);
        FormTexts::apply(&dialog);
        FormTexts::setHelpContextId(&dialog, 1400);
        dialog.show();
        EXPECT_EQ(shown(dialog), "Summary | Your Answer | Check | <> | <> | Done");
        EXPECT_EQ(button.toolTip(), resText(922));
        EXPECT_EQ(button.whatsThis(), explained ? resText(20088) : "");
        EXPECT_EQ(line.accessibleName() + named.accessibleName(), "CheckCheck");
        EXPECT_EQ(dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint), explained);
        EXPECT_TRUE(line.property("helpContextId") == 1400 && !named.property("helpContextId").isValid());
        EXPECT_EQ(FormTexts::helpContextId(&line) + FormTexts::helpContextId(&named), 2800);
        EXPECT_EQ(FormTexts::helpContextId(std::make_unique<QDialog>(&dialog).get()), 0) << "a window of its own";
    }
    QWidget plain;
    plain.setProperty("whatsThisId", 20088);
    FormTexts::apply(&plain);
    EXPECT_FALSE(plain.windowFlags() & Qt::WindowContextHelpButtonHint) << "no dialog";
}

TEST(FormTexts, MnemonicsAndMarkupAreReadAsTheyStand)
{
    for (const auto &[caption, plain] :
         {std::pair("&Find && &Replace", "Find & Replace"), {"R&&D", "R&D"}, {"end&", "end"}})
        EXPECT_EQ(FormTexts::withoutMnemonic(FormTexts::escapeMnemonic(plain) + caption), QString(plain) + plain);
    for (const QString text : {"plain", "a < b & c", "<b>bold</b>"}) {
        const QString toolTip = FormTexts::plainToolTip(text);
        EXPECT_EQ(Qt::mightBeRichText(toolTip) ? QTextDocumentFragment::fromHtml(toolTip).toPlainText() : toolTip,
                  text);
        EXPECT_EQ(toolTip == text, !text.startsWith('<'));
    }
}
