#pragma once

#include "core/context.h"
#include "views/selector/picture_folders.h"

#include <QWidget>

class QAction;
class QLabel;
class QMenu;
class QProgressBar;
class QTimer;
class QToolBar;

namespace widgets {
class ThumbnailView;
}

namespace views {

/// The pictures of all contacts as thumbnails, gathered bit by bit while the screen stays alive.
class PicturePane : public QWidget {
    Q_OBJECT

public:
    explicit PicturePane(core::Context& context, QWidget* parent = nullptr);

    /// Walks through all contacts anew, once the pane has been seen.
    void gather();
    qint64 currentId() const;
    bool isGathering() const;
    void setMenu(QMenu* menu); ///< of a thumbnail; the sizes are added to it

Q_SIGNALS:
    void contactChosen(qint64 id);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QToolBar* layOutSizes();
    void gatherSome();
    void finish();
    void setSize(int size);
    QString settingsFile() const;

    core::Context& m_context;
    jet::Recordset m_contacts;
    bool m_isDue = false; ///< the contacts are to be read
    int m_next = 0; ///< the row to be looked at; all have been when it is the last
    PictureFolders m_folders;
    widgets::ThumbnailView* Thumb;
    QProgressBar* PG1;
    QTimer* Timer1;
    QLabel* m_count;
    QList<QAction*> m_sizes;
};

} // namespace views
