#pragma once

#include <QIcon>
#include <QWidget>

/// The square beside a result in which the check mark or the X is drawn. Cleared it shows the window's ground.
class MarkArea : public QWidget
{
    Q_OBJECT

public:
    static constexpr int Side = 32; ///< pixels

    explicit MarkArea(QWidget *parent = nullptr);

    /// The picture on view, 0 when the area is clear.
    int mark() const { return m_mark; }
    void setMark(int pictureNumber);
    void clear();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_mark = 0;
};
