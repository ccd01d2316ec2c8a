#include "resources/Pictures.h"
#include "services/desktop/ContextMenuKey.h"
#include "services/desktop/Contrast.h"
#include "services/desktop/EnterKey.h"
#include "services/desktop/EscapeKey.h"
#include "services/desktop/MenuBarFocus.h"
#include "services/desktop/PopupCloser.h"
#include "services/desktop/ProgramStyle.h"
#include "services/desktop/ScreenFit.h"
#include "support/Pixels.h"

#include <QCompleter>

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
        if (const auto *title = qstyleoption_cast<const QStyleOptionTitleBar *>(&option))
            with.drawComplexControl(QStyle::CC_TitleBar, title, &painter);
        else
            with.drawControl(QStyle::CE_MenuItem, &option, &painter);
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
    QLabel label("no outline");
    flat.setFlat(true);
    preferred.setDefault(true);
    frame.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    focused.show();
    QApplication::setActiveWindow(&focused);
    focused.setFocus();
    // those with an outline around all of them, around a part, and with none
    QWidget *const widgets[] = {&frame, &line,   &button, &spin,    &group, &check,
                                &radio, &scroll, &label,  &focused, &flat,  &preferred};
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
            EXPECT_TRUE(letters > 3 && shadow > 1.5 && signs > 3) << letters << ' ' << shadow << ' ' << signs;
    }
}

TEST_F(StyleTest, SignsAreTheProgramsInTheColoursOfTheirGroundAndButtonsHaveNone)
{
    const auto image = [](const QIcon &icon, QIcon::Mode mode = QIcon::Normal) {
        return icon.pixmap({48, 48}, mode).toImage();
    };
    using enum QStyle::StandardPixmap;
    const auto signs = {SP_ToolBarHorizontalExtensionButton,
                        SP_ToolBarVerticalExtensionButton,
                        SP_TitleBarMinButton,
                        SP_TitleBarMaxButton,
                        SP_TitleBarNormalButton,
                        SP_TitleBarCloseButton};
    const int numbers[] = {PictureMore, PictureMore, PictureMinimize, PictureMaximize, PictureRestore, PictureClose};
    for (size_t i = 0; i < signs.size(); ++i)
        EXPECT_EQ(image(style.standardIcon(signs.begin()[i])), image(picture(numbers[i]))) << i;
    EXPECT_EQ(image(style.standardIcon(QStyle::SP_FileIcon)), image(plain->standardIcon(QStyle::SP_FileIcon)));
    const QPalette before = QGuiApplication::palette();
    QGuiApplication::setPalette(Dark);
    const QColor text = Dark.windowText().color(), accent("#2f86e0"), chosen = Dark.highlightedText().color();
    const QColor grey = Dark.color(QPalette::Disabled, QPalette::WindowText);
    const std::tuple<QIcon::Mode, QColor, QColor> modes[] = {{QIcon::Normal, text, accent},
                                                             {QIcon::Active, text, Contrast::mixed(accent, text, 0.5)},
                                                             {QIcon::Selected, chosen, chosen},
                                                             {QIcon::Disabled, grey, grey}};
    for (const auto &[mode, line, other] : modes)
        EXPECT_EQ(image(picture(PictureFind), mode), drawPicture(PictureFind, 48, line, other)) << mode;
    QGuiApplication::setPalette(before);
    EXPECT_TRUE(!style.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons) &&
                !style.styleHint(QStyle::SH_EtchDisabledText) && style.styleHint(QStyle::SH_ToolTip_WakeUpDelay));
}

TEST_F(StyleTest, JoinedLettersAreUnderlinedWhileAltIsHeldOnly)
{
    QWidget window;
    window.show();
    const auto underlined = [this] { return style.styleHint(QStyle::SH_UnderlineShortcut) != 0; };
    EXPECT_TRUE(underlined());
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    style.polish(qApp);
    EXPECT_FALSE(underlined());
    QString shown;
    for (const int key : {+Qt::Key_Shift, +Qt::Key_Alt, -Qt::Key_Shift, -Qt::Key_Alt, +Qt::Key_Alt}) { // and releases
        key > 0 ? QTest::keyPress(&window, Qt::Key(key)) : QTest::keyRelease(&window, Qt::Key(-key));
        shown += underlined() ? '_' : '.';
    }
    QEvent left(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(&window, &left);
    EXPECT_TRUE(shown == ".__._" && !underlined()) << shown.toStdString();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
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
        SCOPED_TRACE(rows + hasButtons);
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
            const int beside = dialog.width() - part->mapTo(&dialog, QPoint(part->width(), 0)).x();
            EXPECT_TRUE(part == last[0] || (beside >= 9 && beside <= 11)) << beside;
        }
        EXPECT_TRUE(!area || (area->verticalScrollBar()->value() > 0 && area->horizontalScrollBar()->maximum() == 0 &&
                              area->widget()->width() == area->viewport()->width()));
    }
}

TEST(ScreenFitTest, DialogsThatAreTooWideBecomeNarrowerBeforeTheyScroll)
{
    const ScreenFit fit(*qApp);
    QDialog dialog;
    auto *layout = new QHBoxLayout(&dialog);
    auto *check = new QCheckBox(QString("a few words ").repeated(12).trimmed());
    auto *box = new QComboBox;
    box->addItem(QString(100, u'x'));
    layout->addWidget(check);
    layout->addWidget(box);
    dialog.show();
    EXPECT_LE(dialog.width(), QGuiApplication::primaryScreen()->availableSize().width());
    EXPECT_EQ(dialog.findChild<QScrollArea *>(), nullptr);
    EXPECT_EQ(check->text().count('\n'), 1);
}

TEST(ScreenFitTest, WindowsOfAScreenThatHasGoneComeIntoView)
{
    const QList<QRect> one = {{0, 30, 1280, 770}}, two = {{0, 30, 1280, 770}, {1280, 0, 640, 400}};
    const std::tuple<QRect, QList<QRect>, QRect> cases[] = {
        {{1192, 80, 900, 600}, one, {380, 80, 900, 600}}, {{1192, 80, 900, 600}, two, {1280, 0, 640, 400}},
        {{1300, -9, 500, 300}, two, {1300, 0, 500, 300}}, {{1100, 80, 400, 300}, two, {1100, 80, 400, 300}},
        {{1500, 900, 2000, 50}, one, {0, 750, 1280, 50}}, {{5, 5, 10, 10}, {}, {5, 5, 10, 10}}};
    for (const auto &[frame, screens, place] : cases)
        EXPECT_EQ(ScreenFit::inView(frame, screens), place) << frame.x() << ' ' << screens.size();
}

TEST(DesktopKeys, ShiftF10OpensTheMenuAtTheCaretOfTheControlWithTheFocus)
{
    const ContextMenuKey filter(*qApp);
    QWidget window;
    QLineEdit line("some words", &window), other(&window);
    int asked = 0;
    for (QLineEdit *each : {&line, &other}) {
        each->setContextMenuPolicy(Qt::CustomContextMenu);
        QObject::connect(each, &QWidget::customContextMenuRequested, [&asked, each](const QPoint &place) {
            asked += place == each->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        });
    }
    window.show();
    QApplication::setActiveWindow(&window);
    line.setFocus();
    line.setCursorPosition(4);
    const auto isTaken = [](QWidget &by, Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QKeyEvent press(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(&by, &press);
        return press.isAccepted();
    };
    EXPECT_FALSE(isTaken(line, Qt::Key_F10, {}) || isTaken(line, Qt::Key_F9, Qt::ShiftModifier) ||
                 isTaken(other, Qt::Key_F10, Qt::ShiftModifier) || asked);
    EXPECT_TRUE(isTaken(line, Qt::Key_F10, Qt::ShiftModifier) && asked == 1);
}

TEST(DesktopKeys, EnterOnABoxToCheckMeansTheDefaultButtonAndOnAButtonItself)
{
    QDialog dialog;
    QPushButton box("Check", &dialog), ok("OK", &dialog), cancel("Cancel", &dialog); // each is pressed by Enter
    box.setCheckable(true);
    ok.setDefault(true);
    QObject::connect(&ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    EnterKey::leaveToDialog(dialog);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Enter, Qt::Key_Return}) {
        dialog.show();
        QTest::keyClick(&box, key);
        EXPECT_TRUE(box.isChecked());
        EXPECT_EQ(dialog.isVisible(), key == Qt::Key_Space);
    }
    const QSignalSpy cancelled(&cancel, &QPushButton::clicked);
    QTest::keyClick(&cancel, Qt::Key_Return);
    EXPECT_EQ(cancelled.size(), 1);
}

TEST(DesktopKeys, EscapeClosesTheListAndThenTheDialog)
{
    const EscapeKey key(*qApp);
    QDialog dialog;
    QComboBox box(&dialog);
    box.addItems({"one", "two"});
    dialog.show();
    box.showPopup();
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(!QApplication::activePopupWidget() && dialog.isVisible());
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST(DesktopPopups, ListsOfADialogEndWithIt)
{
    const PopupCloser closer(*qApp);
    QDialog dialog, other;
    QLineEdit line(&dialog);
    QComboBox box(&dialog);
    box.addItem("one");
    line.setCompleter(new QCompleter({"words"}, &line));
    for (const bool ofLine : {true, false}) {
        dialog.show();
        other.show();
        ofLine ? line.completer()->complete() : box.showPopup();
        other.hide();
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
