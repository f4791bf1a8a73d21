#include "core/screens.h"

#include "core/frame.h"
#include "core/paint_timing.h"

#include <QApplication>

#include <algorithm>
#include <utility>

namespace core {

QStringList Screens::names() const
{
    QStringList names = m_factories.keys();
    std::sort(names.begin(), names.end());
    return names;
}

Screen* Screens::load(QStringView form)
{
    if (Screen* open = find(form))
        return open;
    const auto factory = m_factories.constFind(form.toString());
    if (factory == m_factories.constEnd())
        return nullptr;
    Q_ASSERT(m_context);
    Screen* screen = (*factory)(*m_context);
    screen->setObjectName(form.toString());
    m_open.insert(form.toString(), screen);
    reportFirstPaint(screen);
    screen->load();
    screen->noteBookRead();
    return screen;
}

Screen* Screens::find(QStringView form) const
{
    return m_open.value(form.toString());
}

bool Screens::show(QStringView form, Shown shown)
{
    Screen* screen = load(form);
    if (!screen)
        return false;
    m_context->frame.place(screen, shown);
    return true;
}

void Screens::unload(QStringView form)
{
    if (Screen* open = find(form)) {
        m_open.remove(form.toString());
        open->deleteLater();
    }
}

void Screens::tellBookChanged(Screen* by)
{
    for (Screen* screen : openOnes<Screen>()) {
        if (screen == by || screen->isVisible())
            screen->noteBookRead();
        if (screen != by && screen->isVisible())
            screen->bookChanged();
    }
}

void Screens::tellVocabulariesChanged()
{
    for (Screen* screen : openOnes<Screen>())
        screen->vocabulariesChanged();
}

bool Screens::mayCloseAll()
{
    for (const QString& form : m_context->shared.unsavedEntries.keys())
        show(form);
    for (Screen* screen : openOnes<Screen>()) {
        if (screen->isTouched())
            m_context->frame.bringForward(screen);
        if (!screen->mayEndProgram())
            return false;
    }
    return true;
}

void Screens::unloadAll()
{
    const auto open = std::exchange(m_open, {});
    // What a field does when it is left it does while its form is whole.
    if (QWidget* focus = QApplication::focusWidget())
        focus->clearFocus();
    for (const QPointer<Screen>& screen : open)
        delete screen.data();
}

} // namespace core
