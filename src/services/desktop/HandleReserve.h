#pragma once

#include <QDeadlineTimer>
#include <QObject>

#include <vector>

class QApplication;

/// Keeps some of the handles that the program may have, and gives them back when a window shows, changes its size or
/// closes while there are none left; while a size is being dragged it looks now and then. Without any the connection to
/// the desktop breaks for good, and nothing can be told, saved or ended.
class HandleReserve : public QObject
{
    Q_OBJECT

public:
    explicit HandleReserve(QApplication &application);
    ~HandleReserve() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();
    void release();

    std::vector<int> m_handles;
    QDeadlineTimer m_nextLook; ///< at the handles, for a window that changes its size
};
