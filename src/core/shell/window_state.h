#pragma once

#include <QRect>
#include <QString>
#include <QStringList>

class QMainWindow;

namespace shell {

/// How the frame looked on this computer when it was left: place and size, bars, colours, open screens. What
/// the program does is set in the book instead.
class WindowState {
public:
    explicit WindowState(QString file)
        : m_file(std::move(file))
    {
    }

    void rememberWindow(const QMainWindow& window) const;
    /// A window that was larger than the screen is now, or lay beside it, comes back within it.
    void recallWindow(QMainWindow& window) const;

    void rememberScreens(const QStringList& forms, const QString& inFront) const;
    QStringList screens() const;
    QString screenInFront() const;

    void rememberLook(bool dark) const;
    void rememberShowingAll(bool shown) const;
    bool showsAll() const;

private:
    QString m_file;
};

/// The rectangle moved and cut so that it lies on the screen.
QRect withinScreen(QRect window, const QRect& screen);

} // namespace shell
