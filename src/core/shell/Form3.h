#pragma once

#include <QWidget>

namespace shell {

/// The notice of a start that takes long because the databases are being made.
class Form3 : public QWidget {
    Q_OBJECT

public:
    explicit Form3(QWidget* parent = nullptr);
};

} // namespace shell
