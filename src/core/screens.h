#pragma once

#include "core/command_table.h"
#include "core/screen.h"

#include <QHash>
#include <QPointer>

#include <functional>

namespace core {

/// The screens of the program by form name. Each subsystem registers what it has; a name that nobody
/// registered opens nothing. A form is open at most once.
class Screens {
public:
    using Factory = std::function<Screen*(Context&)>;

    template <class T> void add(const QString& form)
    {
        m_factories.insert(form, [](Context& context) -> Screen* { return new T(context); });
    }
    void add(const QString& form, Factory factory) { m_factories.insert(form, std::move(factory)); }
    /// Before any screen is loaded; the context needs the registry, so it can not be given at construction.
    void setContext(Context& context) { m_context = &context; }

    bool has(QStringView form) const { return m_factories.contains(form.toString()); }
    QStringList names() const;

    /// The open screen of that name, or a new one, loaded but not shown; nullptr when nobody registered the
    /// name.
    Screen* load(QStringView form);
    /// The same as one of the hand-over interfaces; nullptr also when the screen is not one.
    template <class Interface> Interface* load(QStringView form)
    {
        return dynamic_cast<Interface*>(load(form));
    }
    /// The open screen of that name; nullptr when it is not open.
    Screen* find(QStringView form) const;
    template <class Interface> Interface* find(QStringView form) const
    {
        return dynamic_cast<Interface*>(find(form));
    }

    /// All open screens that are one of the hand-over interfaces.
    template <class Interface> QList<Interface*> openOnes() const
    {
        QList<Interface*> found;
        for (const QPointer<Screen>& screen : m_open) {
            if (auto* one = dynamic_cast<Interface*>(screen.data()))
                found << one;
        }
        return found;
    }

    bool show(QStringView form, Shown shown = Shown::Modelessly);
    void unload(QStringView form);

    /// To be called by every save: the open screens follow, those out of sight when they are seen again. The
    /// screen that made the change has shown it already.
    void tellBookChanged(Screen* by = nullptr);
    void tellVocabulariesChanged();
    /// Whether all screens may go, since the program ends, a sibling takes over or the book is exchanged.
    /// Each that holds something typed comes forward and asks.
    bool mayCloseAll();
    /// All open screens go at once, before the files they read are exchanged.
    void unloadAll();

private:
    QHash<QString, Factory> m_factories;
    QHash<QString, QPointer<Screen>> m_open;
    Context* m_context = nullptr;
};

} // namespace core
