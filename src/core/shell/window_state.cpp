#include "core/shell/window_state.h"

#include <QMainWindow>
#include <QScreen>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace shell {

QRect withinScreen(QRect window, const QRect& screen)
{
    window.setSize(window.size().boundedTo(screen.size()));
    const int left = qBound(screen.left(), window.left(), screen.right() + 1 - window.width());
    const int top = qBound(screen.top(), window.top(), screen.bottom() + 1 - window.height());
    window.moveTopLeft({left, top});
    return window;
}

void WindowState::rememberWindow(const QMainWindow& window) const
{
    QSettings state(m_file, QSettings::IniFormat);
    state.setValue(u"geometry"_s, window.saveGeometry());
    state.setValue(u"panes"_s, window.saveState());
}

void WindowState::recallWindow(QMainWindow& window) const
{
    const QSettings state(m_file, QSettings::IniFormat);
    window.restoreGeometry(state.value(u"geometry"_s).toByteArray());
    window.restoreState(state.value(u"panes"_s).toByteArray());
    if (const QScreen* screen = window.screen(); screen && !window.isMaximized() && !window.isFullScreen())
        window.setGeometry(withinScreen(window.geometry(), screen->availableGeometry()));
}

void WindowState::rememberScreens(const QStringList& forms, const QString& inFront) const
{
    QSettings state(m_file, QSettings::IniFormat);
    state.setValue(u"screens"_s, forms);
    state.setValue(u"screenInFront"_s, inFront);
}

QStringList WindowState::screens() const
{
    return QSettings(m_file, QSettings::IniFormat).value(u"screens"_s).toStringList();
}

QString WindowState::screenInFront() const
{
    return QSettings(m_file, QSettings::IniFormat).value(u"screenInFront"_s).toString();
}

void WindowState::rememberLook(bool dark) const
{
    QSettings(m_file, QSettings::IniFormat).setValue(u"look"_s, dark ? u"dark"_s : u"light"_s);
}

void WindowState::rememberShowingAll(bool shown) const
{
    QSettings(m_file, QSettings::IniFormat).setValue(u"showsAll"_s, shown);
}

bool WindowState::showsAll() const
{
    return QSettings(m_file, QSettings::IniFormat).value(u"showsAll"_s).toBool();
}

} // namespace shell
