#pragma once

#include <QProxyStyle>
#include <QStyleOption>

/// The desktop's own style, mended where it would hide something: pictures of chosen menu entries, check marks, titles
/// of documents on a light highlight or on dark windows, signs on their buttons and in their menus, and, in the
/// toolkit's Fusion style, outlines of controls on dark windows. Texts that are disabled have no shadow, buttons of
/// dialogs no icons.
/// Where lines begin at the right, letters are underlined only while Alt is held: the toolkit draws an underlined
/// Arabic letter apart from its neighbours, wider than the room that the text was given. The picture of a bar's button
/// for what has no room is the program's own: the style's would be read from a file, for which the start would have to
/// load every image format there is.
class ProgramStyle : public QProxyStyle
{
    Q_OBJECT

public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap standard, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    using QProxyStyle::polish;
    void polish(QApplication *application) override;
    void polish(QWidget *widget) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void drawEntry(QStyleOptionMenuItem entry, QPainter *painter, const QWidget *widget) const;
    bool hidesOutlines(const QStyleOption &option) const;
    void setAltHeld(bool held);

    bool m_altHeld = false;
};
