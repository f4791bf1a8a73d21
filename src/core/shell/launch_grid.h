#pragma once

#include <QListView>

class QStandardItemModel;

namespace shell {

/// The labels of a launch pad page as tiles: icon, name, one line that says what for. A tile of a command
/// that does nothing yet is grey.
class LaunchGrid : public QListView {
    Q_OBJECT

public:
    explicit LaunchGrid(QWidget* parent = nullptr);

    void clearTiles();
    void addTile(const QString& label, const QString& description, const QString& icon, bool available);

Q_SIGNALS:
    void started(const QString& label);
    void hovered(const QString& label);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QStandardItemModel* m_tiles;
};

} // namespace shell
