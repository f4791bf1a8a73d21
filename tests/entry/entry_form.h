#pragma once

#include <QtTest>
#include <QtWidgets>

#include "core/frame.h"
#include "entry/form/FormMain.h"
#include "entry/register_entry.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/fields.h"

/// An entry form, the detailed one unless told otherwise, on a book of its own, worked by the names of its
/// controls.
class EntryForm : public support::ScreenFixture {
public:
    void start(QStringView name = u"FormMain")
    {
        entry::registerEntry(screens);
        m_form = dynamic_cast<entry::FormMain*>(screens.load(name));
        screens.show(name);
        // Only the active window has a focus to give and to take.
        m_form->activateWindow();
        if (!QTest::qWaitForWindowActive(m_form))
            qFatal("the form does not become active");
    }

    entry::FormMain* form() const { return m_form; }
    template <class T> T* child(const QString& name) const { return widgets::child<T>(m_form, name); }
    QString text(const QString& name) const { return widgets::textOf(child<QWidget>(name)); }
    void set(const QString& name, const QString& text) { widgets::setTextOf(child<QWidget>(name), text); }
    void click(const QString& name) { support::click(m_form, name); }
    bool shows(const QString& name) const { return child<QWidget>(name)->isVisibleTo(m_form); }

    /// Types into a field as a person does who comes to it and leaves it by Tab.
    void type(const QString& name, const QString& typed)
    {
        auto* field = support::reach(m_form, name);
        field->setFocus();
        support::type(m_form, name, typed);
        auto* combo = qobject_cast<QComboBox*>(field);
        QTest::keyClick(combo ? combo->lineEdit() : field, Qt::Key_Tab);
    }
    void showPageOf(const QString& name) { support::reach(m_form, name); }

    void addContact(const QString& columns, const QString& values)
    {
        execute(QStringLiteral("insert into cnt_main (") + columns + QStringLiteral(") values (") + values
            + u')');
    }
    int contacts() { return int(book.rows(QStringLiteral("select id from cnt_main")).size()); }

private:
    entry::FormMain* m_form = nullptr;
};
