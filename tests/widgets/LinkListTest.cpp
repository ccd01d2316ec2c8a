#include "widgets/LinkList.h"

TEST(LinkListTest, KeysGoAlongItsLinksAndReadersAreToldOfThem)
{
    QWidget window;
    LinkList list("Files", &window);
    QStringList run;
    const auto runs = [&run](const char *what) { return [&run, what] { run += what; }; };
    list.setLinks({{"one", "", 21330, runs("one")}, {"two", "/two", 21330, runs("two")}, {"3", "", 21330, runs("3")}});
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    list.adjustSize();
    const auto &links = list.links();
    EXPECT_EQ(list.childrenRect(), list.rect());
    EXPECT_EQ(list.height(), list.findChild<QLabel *>()->height() + 3 * links[0]->height());
    links[2]->setFocus();
    const QImage plain = links[0]->grab().toImage();
    links[0]->setAttribute(Qt::WA_UnderMouse);
    EXPECT_NE(links[0]->grab().toImage(), plain);
    links[0]->setAttribute(Qt::WA_UnderMouse, false);
    links[0]->setFocus();
    EXPECT_NE(links[0]->grab().toImage(), plain);
    for (const QString &step : QString("Down 1, Down 2, Down 2, Up 1, A 1, Home 0, Up 0, End 2, Up 1").split(", ")) {
        QTest::keySequence(QApplication::focusWidget(), QKeySequence(step.section(' ', 0, 0)));
        for (size_t i = 0; i < 3; ++i) {
            const bool current = i == step.section(' ', 1).toUInt();
            EXPECT_TRUE(links[i]->hasFocus() == current && (links[i]->focusPolicy() == Qt::StrongFocus) == current);
        }
    }
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_B})
        QTest::keyClick(links[1], key);
    QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(links[2]);
    EXPECT_EQ(reader->text(QAccessible::Name) + reader->text(QAccessible::Description), "3Files");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(links[1])->text(QAccessible::Name), "/two");
    reader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QTest::qWaitFor([&run] { return run.join(' ') == "two two two 3"; }));
    const QPointer<QWidget> gone = links[0];
    list.setLinks({});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(!list.isVisible() && !gone);
}
