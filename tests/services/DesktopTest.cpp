#include "platform/ClipboardOwner.h"
#include "resources/Pictures.h"
#include "resources/TextLanguage.h"
#include "services/desktop/ContextMenuKey.h"
#include "services/desktop/Contrast.h"
#include "services/desktop/EnterKey.h"
#include "services/desktop/EscapeKey.h"
#include "services/desktop/MenuBarFocus.h"
#include "services/desktop/PasteGuard.h"
#include "services/desktop/PopupCloser.h"
#include "services/desktop/ProgramStyle.h"
#include "services/desktop/ScreenFit.h"

const QPalette Dark(QColor(50, 50, 50)), Light(QColor(239, 239, 239));

/// How clearly the brightest and the darkest pixel of a picture's part stand out of a ground.
std::pair<double, double> contrasts(const QImage &image, const QRect &part, const QColor &ground)
{
    std::pair<double, double> found;
    for (int i = 0; i < part.width() * part.height(); ++i) {
        const QColor colour = image.pixelColor(part.x() + i % part.width(), part.y() + i / part.width());
        double &best = colour.lightnessF() > ground.lightnessF() ? found.first : found.second;
        best = std::max(best, Contrast::between(colour, ground));
    }
    return found;
}

struct StyleTest : ::testing::Test
{
    ProgramStyle style;
    std::unique_ptr<QStyle> plain{QStyleFactory::create("Fusion")};

    static QImage look(QWidget &widget, QStyle &with, const QPalette &palette)
    {
        widget.setStyle(&with);
        widget.setPalette(palette);
        return widget.grab().toImage();
    }
    static QImage look(const QStyleOption &option, const QStyle &with)
    {
        QImage image(option.rect.size(), QImage::Format_RGB32);
        image.fill(option.palette.window().color());
        QPainter painter(&image);
        painter.setLayoutDirection(option.direction);
        painter.setBrush(Qt::red);
        if (const auto *title = qstyleoption_cast<const QStyleOptionTitleBar *>(&option))
            with.drawComplexControl(QStyle::CC_TitleBar, title, &painter);
        else if (option.type == QStyleOption::SO_Default)
            with.drawPrimitive(QStyle::PE_IndicatorRadioButton, &option, &painter);
        else
            with.drawControl(option.type == QStyleOption::SO_MenuItem   ? QStyle::CE_MenuItem
                             : option.type == QStyleOption::SO_ViewItem ? QStyle::CE_ItemViewItem
                                                                        : QStyle::CE_ComboBoxLabel,
                             &option, &painter);
        EXPECT_TRUE(painter.brush() == QBrush(Qt::red) && painter.pen() == QPen() &&
                    !painter.testRenderHint(QPainter::Antialiasing));
        return image;
    }
};

TEST_F(StyleTest, OutlinesStandOutOnDarkWindowsAndAreTheToolkitsOnLightOnes)
{
    const QRect all(0, 0, 120, 60);
    QCheckBox check;
    QRadioButton radio;
    QLineEdit line;
    QPushButton button("Push"), focused("Focus"), flat("Flat"), preferred("Enter");
    QFrame frame;
    QSpinBox spin;
    QScrollBar scroll(Qt::Vertical);
    QGroupBox group("Title");
    QSlider slider;
    flat.setFlat(true);
    preferred.setDefault(true);
    frame.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    focused.show();
    QApplication::setActiveWindow(&focused);
    focused.setFocus();
    // those with an outline around all of them, around a part, and with none
    QWidget *const widgets[] = {&frame, &line,   &button, &spin,    &group, &check,
                                &radio, &scroll, &slider, &focused, &flat,  &preferred};
    for (size_t i = 0; i < std::size(widgets); ++i) {
        QWidget &widget = *widgets[i];
        widget.resize(all.size());
        EXPECT_EQ(look(widget, *plain, Light), look(widget, style, Light)) << i;
        const QImage drawn = look(widget, style, Dark);
        const QRect outline = difference(drawn, look(widget, *plain, Dark));
        EXPECT_TRUE(outline == (i < 4 ? all : i < 8 ? outline & all.adjusted(0, 1, 0, 0) : QRect())) << i;
        const QRect below(outline.center(), QSize(outline.isEmpty() ? 0 : 1, (outline.height() + 2) / 2));
        for (const QRect &part : {outline, below})
            EXPECT_GE(contrasts(drawn, part, Dark.window().color()).first, i >= 8 ? 0 : i % 4 ? 3 : 1.7);
    }
    QStyleOption round;
    round.rect = {0, 0, 13, 13};
    round.palette = Dark;
    const QImage ring = look(round, style), none = look(round, *plain);
    EXPECT_TRUE(difference(ring, none) == round.rect && ring.pixel(2, 0) == none.pixel(2, 0) &&
                ring.pixel(6, 6) == none.pixel(6, 6));
}

TEST_F(StyleTest, ChosenAndCheckedMenuEntriesShowTheirPictures)
{
    QStyleOptionMenuItem entry;
    entry.rect = {0, 0, 160, 26};
    entry.palette = Light;
    entry.palette.setColor(QPalette::Highlight, Qt::darkBlue);
    entry.state = QStyle::State_Enabled;
    entry.icon = picture(PictureFind);
    entry.maxIconWidth = 20;
    EXPECT_EQ(look(entry, style), look(entry, *plain));
    QStyleOptionMenuItem chosen = entry;
    chosen.state |= QStyle::State_Selected;
    EXPECT_GT(contrasts(look(chosen, style), QRect(4, 4, 20, 18), Qt::darkBlue).first, 4.5) << "on the highlight";
    chosen.icon = {};
    EXPECT_EQ(look(chosen, style), look(chosen, *plain));
    for (const QStyle::State state : {entry.state, chosen.state}) {
        QStyleOptionMenuItem checked = entry, mark = entry;
        checked.state = mark.state = state;
        checked.checkType = mark.checkType = QStyleOptionMenuItem::NonExclusive;
        checked.checked = true;
        mark.icon = picture(PictureChecked);
        EXPECT_EQ(look(checked, style), look(mark, style));
    }
    for (const QPalette &palette : {Light, Dark}) {
        entry.palette = palette;
        for (const auto kind : {QStyleOptionMenuItem::Separator, QStyleOptionMenuItem::Normal}) {
            entry.menuItemType = kind;
            const bool line = palette == Dark && kind == QStyleOptionMenuItem::Separator;
            EXPECT_EQ(difference(look(entry, style), look(entry, *plain)), line ? QRect(5, 12, 150, 1) : QRect());
        }
    }
}

TEST_F(StyleTest, TitlesOfDocumentsCanBeRead)
{
    QStyleOptionTitleBar title;
    title.rect = {0, 0, 240, 28};
    title.text = "WWWW";
    title.titleBarFlags = Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    title.subControls = QStyle::SC_TitleBarLabel | QStyle::SC_TitleBarCloseButton;
    for (const auto &[palette, active] : {std::pair(Light, true), {Light, false}, {Dark, true}, {Dark, false}}) {
        title.palette = palette;
        title.palette.setColor(QPalette::Highlight, QColor(170, 200, 240));
        title.titleBarState = active ? QStyle::State_Active : QStyle::State_None;
        const QImage bar = look(title, style);
        const auto [letters, shadow] = contrasts(bar, {90, 8, 60, 12}, bar.pixelColor(60, 14));
        const double signs = contrasts(bar, {214, 8, 22, 12}, bar.pixelColor(60, 14)).first;
        if (palette == Light && !active)
            EXPECT_EQ(bar, look(title, *plain));
        else
            EXPECT_TRUE(letters > 3 && shadow > 1.5 && signs > 3 &&
                        active == (bar.pixelColor(60, 14).saturation() > 30));
    }
}

TEST_F(StyleTest, NamesReadAsTheyStandWhereLinesBeginAtTheRight)
{
    const auto isKept = [this](auto option, auto text, const QString &before = {}) {
        option.rect = {0, 0, 240, 28};
        option.state = QStyle::State_Enabled;
        option.direction = Qt::RightToLeft;
        option.*text = before + "C++";
        const QImage shown = look(option, style), turned = look(option, *plain);
        option.*text = before + TextLanguage::isolated("C++");
        return shown == look(option, *plain) && shown != turned;
    };
    const auto areKept = [&] {
        TextLanguage::use("ar"); // to the end of the program
        QStyleOptionViewItem item;
        item.features = QStyleOptionViewItem::HasDisplay;
        return isKept(item, &QStyleOptionViewItem::text) &&
               isKept(QStyleOptionComboBox(), &QStyleOptionComboBox::currentText) &&
               isKept(QStyleOptionMenuItem(), &QStyleOptionMenuItem::text, "Larger\t");
    };
    EXPECT_EXIT(std::_Exit(areKept()), testing::ExitedWithCode(1), "");
}

TEST_F(StyleTest, SignsAreTheProgramsAndButtonsHaveNone)
{
    const auto image = [](const QIcon &icon) { return icon.pixmap({48, 48}).toImage(); };
    using enum QStyle::StandardPixmap;
    const QStyle::StandardPixmap signs[] = {SP_ToolBarHorizontalExtensionButton,
                                            SP_ToolBarVerticalExtensionButton,
                                            SP_TitleBarMinButton,
                                            SP_TitleBarMaxButton,
                                            SP_TitleBarNormalButton,
                                            SP_TitleBarCloseButton};
    const int pictures[] = {PictureMore, PictureMore, PictureMinimize, PictureMaximize, PictureRestore, PictureClose};
    for (size_t i = 0; i < std::size(signs); ++i)
        EXPECT_EQ(image(style.standardIcon(signs[i])), image(picture(pictures[i]))) << i;
    EXPECT_TRUE(!style.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons) &&
                !style.styleHint(QStyle::SH_EtchDisabledText) && style.styleHint(QStyle::SH_ToolTip_WakeUpDelay));
}

TEST_F(StyleTest, JoinedLettersAreUnderlinedWhileAltIsHeldOnly)
{
    QLineEdit window;
    window.show();
    const auto underlined = [this] { return style.styleHint(QStyle::SH_UnderlineShortcut) != 0; };
    EXPECT_TRUE(underlined());
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    style.polish(qApp);
    EXPECT_FALSE(underlined());
    QString shown;
    for (const int key : {+Qt::Key_X, +Qt::Key_Alt, -Qt::Key_X, -Qt::Key_Alt, +Qt::Key_Alt}) { // and releases
        key > 0 ? QTest::keyPress(&window, Qt::Key(key)) : QTest::keyRelease(&window, Qt::Key(-key));
        shown += underlined() ? '_' : '.';
    }
    QEvent left(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(&window, &left);
    EXPECT_TRUE(shown + window.text() == ".__._x" && !underlined()) << shown.toStdString();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    for (const char *language : {"ar_EG", "de", "C"}) {
        QLocale::setDefault(QLocale(language));
        QSpinBox spin;
        style.polish(&spin);
        EXPECT_TRUE(spin.testAttribute(Qt::WA_SetLocale) == (*language == 'a') && spin.testAttribute(Qt::WA_Hover));
    }
}

TEST(Contrast, IsMeasuredAndReached)
{
    // a ground, its contrast to white, and what a faint grey becomes on it
    const std::tuple<QRgb, double, const char *> cases[] = {{0x000000, 21.0, "#757575"},
                                                            {0x05090a, 20.0, "#777979"},
                                                            {0xff0000, 4.0, "#ffffff"},
                                                            {0x00ff00, 1.37, "#ffffff"},
                                                            {0x0000ff, 8.59, "#babaf3"}};
    for (const auto &[ground, ratio, letters] : cases) {
        EXPECT_NEAR(Contrast::between(Qt::white, QColor(ground)), ratio, 0.01);
        EXPECT_EQ(Contrast::readable(QColor(99, 99, 99, 64), QColor(ground), Qt::white).name(), letters);
    }
}

TEST(ScreenFitTest, DialogsLargerThanTheScreenScrollAndKeepTheirButtons)
{
    const ScreenFit fit(*qApp);
    const QSize room = QGuiApplication::primaryScreen()->availableSize() - QSize(10, 36);
    // the rows of the dialog, whether it ends in buttons, the size it asks for and gets, and whether it scrolls
    const std::tuple<int, bool, QSize, QSize, bool> cases[] = {{3, true, {300, 200}, {300, 200}, false},
                                                               {3, true, {9000, 200}, {room.width(), 200}, false},
                                                               {90, true, {9, 9}, {-1, room.height()}, true},
                                                               {90, false, {9000, 9000}, room, true},
                                                               {0, false, {9000, 9000}, {9000, 9000}, false}};
    for (const auto &[rows, hasButtons, asked, got, scrolls] : cases) {
        QDialog dialog;
        auto *layout = rows ? new QVBoxLayout(&dialog) : nullptr;
        QList<QWidget *> last(rows ? 1 : 0);
        for (int row = 0; row < rows; ++row)
            layout->addWidget(last[0] = new QLineEdit);
        if (hasButtons) {
            auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
            layout->addWidget(buttons);
            last += buttons->button(QDialogButtonBox::Ok);
        }
        dialog.resize(asked);
        dialog.show();
        EXPECT_EQ(dialog.size(), QSize(got.width() < 0 ? dialog.width() : got.width(), got.height()));
        const auto *area = dialog.findChild<QScrollArea *>();
        EXPECT_EQ(area != nullptr, scrolls);
        QApplication::setActiveWindow(&dialog);
        for (QWidget *part : last) {
            part->setFocus();
            QCoreApplication::processEvents();
            EXPECT_EQ(part->visibleRegion().boundingRect(), part->rect());
            const QPoint beside = dialog.rect().bottomRight() - part->mapTo(&dialog, part->rect().bottomRight());
            EXPECT_TRUE(part == last[0] || QRect(9, 9, 3, area ? 3 : 999).contains(beside));
        }
        EXPECT_TRUE(!area || (area->geometry().topLeft().isNull() && area->width() == dialog.width() &&
                              (hasButtons || area->height() == dialog.height()) && area->focusPolicy() == Qt::NoFocus &&
                              area->frameShape() == QFrame::NoFrame && area->verticalScrollBar()->value() > 0 &&
                              area->horizontalScrollBar()->maximum() == 0 &&
                              area->widget()->width() == area->viewport()->width()));
    }
}

TEST(ScreenFitTest, DialogsThatAreTooWideBecomeNarrowerBeforeTheyScroll)
{
    const ScreenFit fit(*qApp);
    QDialog dialog;
    auto *column = new QVBoxLayout(&dialog);
    QListWidget list;
    QComboBox box;
    box.addItem(QString(200, u'x'));
    list.setMinimumWidth(3000);
    column->addWidget(&list);
    column->addWidget(&box);
    // the letters of each word, and after how many letters the text goes on in a second line;
    // long words do not show
    const std::pair<std::vector<int>, int> texts[] = {{{5, 5}, -1},       {{45, 10, 55}, 56}, {{55, 10, 45}, 55},
                                                      {{30, 30, 40}, 61}, {{60, 40}, 60},     {{40, 60}, 40},
                                                      {{70, 70}, -1},     {{45, 9, 45}, 45}};
    QStringList wanted;
    for (const auto &[words, at] : texts) {
        QStringList text;
        for (const int letters : words)
            text += QString(letters, u'w');
        wanted += text.join(u' ');
        auto *check = new QCheckBox(wanted.back());
        check->setHidden(words[0] == 70);
        column->addWidget(check);
        if (at >= 0)
            wanted.back()[at] = u'\n';
    }
    dialog.show();
    EXPECT_TRUE(!dialog.findChild<QScrollArea *>() && list.minimumWidth() == 0);
    EXPECT_EQ(box.minimumWidth(), 10 * box.fontMetrics().horizontalAdvance(u'X'));
    for (int i = 0; i < wanted.size(); ++i)
        EXPECT_EQ(dialog.findChildren<QCheckBox *>()[i]->text(), wanted[i]) << i;
}

TEST(ScreenFitTest, WindowsOfAScreenThatHasGoneComeIntoView)
{
    const QList<QRect> one = {{0, 30, 1280, 770}}, two = {{0, 30, 1280, 770}, {1280, 0, 640, 400}};
    const std::tuple<QRect, QList<QRect>, QRect> cases[] = {
        {{1192, 80, 900, 600}, one, {380, 80, 900, 600}}, {{1192, 80, 900, 600}, two, {1280, 0, 640, 400}},
        {{1300, -9, 500, 300}, two, {1300, 0, 500, 300}}, {{1100, 80, 400, 300}, two, {1100, 80, 400, 300}},
        {{1500, 900, 2000, 50}, two, {0, 750, 1280, 50}}, {{5, 5, 10, 10}, {}, {5, 5, 10, 10}}};
    for (const auto &[frame, screens, place] : cases)
        EXPECT_EQ(ScreenFit::inView(frame, screens), place) << frame.x() << ' ' << screens.size();
    const ScreenFit fit(*qApp);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry(), gone(5000, 100, 2000, 300);
    QWidget window, closed, tip(nullptr, Qt::ToolTip), minimized;
    for (QWidget *each : {&window, &closed, &tip, &minimized}) {
        each->setGeometry(gone);
        each->setVisible(each != &closed);
    }
    minimized.showMinimized();
    const QRect frame = window.frameGeometry();
    Q_EMIT qApp->screenRemoved(qApp->primaryScreen());
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.geometry() != gone; }));
    EXPECT_EQ(window.frameGeometry(), QRect(screen.left(), frame.top(), screen.width(), frame.height()));
    for (const QWidget *stays : {&closed, &tip, &minimized})
        EXPECT_EQ(stays->geometry(), gone);
}

struct DesktopKeysTest : ::testing::Test
{
    DesktopKeysTest() { list.addItems({"one", "two"}); }

    QDialog dialog;
    QLineEdit line{"some words", &dialog}, other{&dialog};
    QComboBox list{&dialog};
};

TEST_F(DesktopKeysTest, ShiftF10OpensTheMenuAtTheCaretOfTheControlWithTheFocus)
{
    const ContextMenuKey filter(*qApp);
    QPoint asked;
    line.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&line, &QWidget::customContextMenuRequested, [&](const QPoint &place) { asked = place; });
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    line.setFocus();
    line.setCursorPosition(4);
    const std::tuple<QWidget *, QKeyCombination, bool> keys[] = {{&line, Qt::Key_F10, false},
                                                                 {&line, Qt::ShiftModifier | Qt::Key_F9, false},
                                                                 {&other, Qt::ShiftModifier | Qt::Key_F10, false},
                                                                 {&line, Qt::ShiftModifier | Qt::Key_F10, true}};
    for (const auto &[to, key, taken] : keys) {
        QKeyEvent press(QEvent::KeyPress, key.key(), key.keyboardModifiers());
        QCoreApplication::sendEvent(to, &press);
        EXPECT_EQ(press.isAccepted(), taken);
        EXPECT_EQ(asked, taken ? line.inputMethodQuery(Qt::ImCursorRectangle).toRect().center() : QPoint());
    }
}

TEST_F(DesktopKeysTest, EnterOnABoxMeansTheDefaultButtonAndOnAButtonItself)
{
    QPushButton box("Check", &dialog), ok("OK", &dialog), cancel("Cancel", &dialog); // each is pressed by Enter
    box.setCheckable(true);
    ok.setDefault(true);
    QObject::connect(&ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    EnterKey::leaveToDialog(dialog);
    const QSignalSpy cancelled(&cancel, &QPushButton::clicked);
    const std::tuple<QWidget *, Qt::Key, bool> keys[] = {{&box, Qt::Key_Space, true},
                                                         {&box, Qt::Key_Enter, false},
                                                         {&box, Qt::Key_Return, false},
                                                         {&list, Qt::Key_Return, false},
                                                         {&cancel, Qt::Key_Return, true}};
    for (const auto &[control, key, stays] : keys) {
        dialog.show();
        QTest::keyClick(control, key);
        EXPECT_TRUE(box.isChecked() && dialog.isVisible() == stays) << key;
    }
    EXPECT_EQ(cancelled.size(), 1);
    list.setEditable(true);
    const QSignalSpy entered(list.lineEdit(), &QLineEdit::returnPressed);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_TRUE(entered.size() == 1 && !dialog.isVisible()) << "what was typed is taken first";
}

TEST_F(DesktopKeysTest, NothingIsPastedWhileTheClipboardsOwnerHangs)
{
    struct : ClipboardOwner
    {
        bool answers() override { return false; }
    } hanging;
    const PasteGuard guard(*qApp, hanging);
    QGuiApplication::clipboard()->setText("+");
    line.setContextMenuPolicy(Qt::CustomContextMenu);
    const QSignalSpy opened(&line, &QWidget::customContextMenuRequested);
    QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&line, &request);
    QTest::keyClicks(&line, "x");
    QTest::keyClick(&line, Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(line.text() == "some wordsx" && opened.isEmpty());
}

TEST_F(DesktopKeysTest, EscapeClosesTheListAndThenTheDialog)
{
    const EscapeKey key(*qApp);
    dialog.show();
    list.showPopup();
    for (const bool stays : {true, false}) {
        QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(!QApplication::activePopupWidget() && dialog.isVisible() == stays);
    }
}

TEST_F(DesktopKeysTest, ListsOfADialogEndWithIt)
{
    const PopupCloser closer(*qApp);
    line.setCompleter(new QCompleter({"words"}, &line));
    for (const bool ofLine : {true, false}) {
        dialog.show();
        ofLine ? line.completer()->complete() : list.showPopup();
        EXPECT_TRUE(QApplication::activePopupWidget());
        dialog.hide();
        EXPECT_FALSE(QApplication::activePopupWidget());
    }
}

TEST(DesktopFocus, LeavesTheMenuBarWhenItsWindowIsLeft)
{
    const MenuBarFocus focus(*qApp);
    QMainWindow window, other;
    QLineEdit line;
    window.setCentralWidget(&line);
    window.menuBar()->addMenu("File");
    window.show();
    other.show();
    for (QWidget *const before : std::initializer_list<QWidget *>{nullptr, &line}) {
        QApplication::setActiveWindow(&window);
        before ? line.setFocus() : line.clearFocus();
        QTest::keyClick(&window, Qt::Key_Alt);
        EXPECT_TRUE(window.menuBar()->hasFocus());
        QApplication::setActiveWindow(&other);
        QApplication::setActiveWindow(&window);
        EXPECT_EQ(QApplication::focusWidget(), before);
    }
    window.takeCentralWidget();
}
