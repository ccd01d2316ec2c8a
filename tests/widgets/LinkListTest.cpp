#include "widgets/LinkList.h"

#include "resources/StringTable.h"

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
    EXPECT_TRUE(links[0]->focusPolicy() == Qt::StrongFocus && links[1]->focusPolicy() == Qt::ClickFocus);
    EXPECT_EQ(list.childrenRect(), list.rect());
    const auto *heading = list.findChild<QLabel *>();
    EXPECT_TRUE(heading->font().bold() && heading->margin() == 3 && list.accessibleName() == "Files");
    EXPECT_EQ(list.height(), heading->height() + 3 * links[0]->height());
    EXPECT_EQ(links[0]->size(), links[0]->fontMetrics().size(0, "one") + QSize(6, 6));
    links[2]->setFocus();
    window.setAttribute(Qt::WA_KeyboardFocusChange); // else nothing is framed
    const QImage plain = links[0]->grab().toImage();
    links[0]->setAttribute(Qt::WA_UnderMouse);
    const QImage underMouse = links[0]->grab().toImage();
    links[0]->setAttribute(Qt::WA_UnderMouse, false);
    links[0]->setFocus();
    const QImage focused = links[0]->grab().toImage();
    const auto begin = [&](const QImage &image) { return inkOf(image, list.palette().window().color()).topLeft(); };
    EXPECT_TRUE(underMouse != plain && begin(plain).x() >= 3 && begin(underMouse) == begin(plain));
    EXPECT_TRUE(begin(focused).x() < 2 && links[0]->testAttribute(Qt::WA_Hover));
    for (const QString &step : QString("Down 1, Down 2, Down 2, Up 1, A 1, Home 0, Up 0, End 2, Up 1").split(", ")) {
        QTest::keyPress(QApplication::focusWidget(), Qt::Key(QKeySequence(step.section(' ', 0, 0))[0].key()));
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
    EXPECT_TRUE(reader->role() == QAccessible::Link && links[1]->toolTip().contains("/two"));
    EXPECT_TRUE(links[0]->toolTip().isEmpty() && links[2]->whatsThis() == resText(21330));
    reader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QTest::qWaitFor([&run] { return run.join(' ') == "two two two 3"; }));
    const QPointer<QWidget> gone = links[0];
    list.setLinks({});
    EXPECT_TRUE(gone->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(!list.isVisible() && !gone);
}
