#pragma once

#include "core/context.h"
#include "core/stored_file.h"

#include <QObject>

class QWidget;

namespace entry {

/// The picture on an entry form: shown, chosen by the person, and put where it belongs by the save, not
/// before. The form needs the controls `Photo` and `lblPhoto` and the buttons that choose and remove.
class PhotoField : public QObject {
    Q_OBJECT

public:
    PhotoField(QWidget* form, core::Context& context);

    /// The picture of a contact, as it is stored; "" for none. Nothing is touched then.
    void load(const QString& stored);
    bool isTouched() const { return m_path != m_loaded; }
    /// As the contact stores it, or of this computer while it is only chosen.
    const QString& path() const { return m_path; }
    /// Puts a chosen picture where the settings want it; keep() it when the contact is stored.
    core::StoredFile store() const;

private:
    void show(const QString& path);
    void choose();

    QWidget* m_form;
    core::Context& m_context;
    QString m_path;
    QString m_loaded;
    bool m_isChosen = false;
};

} // namespace entry
