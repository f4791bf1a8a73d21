#pragma once

#include <QObject>

class QLineEdit;

namespace widgets {
class RecordList;
}

namespace views {

/// Lets a person change the names in a list where they stand, with F2 or a double click. The list itself
/// stays one to read from; the new name is handed out to be stored.
class ListEditing : public QObject {
    Q_OBJECT

public:
    explicit ListEditing(widgets::RecordList* list);

    void setEditable(bool editable);
    bool isEditable() const { return m_editable; }

Q_SIGNALS:
    void nameEdited(qint64 id, const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void begin();
    void finish(bool keep);

    widgets::RecordList* m_list;
    QLineEdit* m_editor;
    bool m_editable = false;
    qint64 m_id = 0;
    QString m_before;
};

} // namespace views
