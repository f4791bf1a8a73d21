#include "widgets/alphabet_tabs.h"

#include "widgets/look_style.h"

#include <QSignalBlocker>

namespace widgets {

AlphabetTabs::AlphabetTabs(QWidget* parent)
    : QTabBar(parent)
{
    setExpanding(false);
    setDrawBase(false);
    setUsesScrollButtons(true);
    setProperty(kNarrowTabs, true);
    setLabels(alphabet(tr("All")));
    connect(this, &QTabBar::currentChanged, this, [this] { Q_EMIT labelChosen(currentLabel()); });
    connect(this, &QTabBar::tabBarClicked, this, [this](int tab) {
        if (tab == currentIndex())
            Q_EMIT labelChosen(currentLabel());
    });
}

QStringList AlphabetTabs::alphabet(const QString& all)
{
    QStringList labels{all};
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter)
        labels += QString(QChar(letter));
    return labels;
}

void AlphabetTabs::setLabels(const QStringList& labels)
{
    const QSignalBlocker quiet(this);
    while (count() > 0)
        removeTab(count() - 1);
    for (const QString& label : labels)
        addTab(label);
}

QString AlphabetTabs::currentLabel() const
{
    return tabText(currentIndex());
}

void AlphabetTabs::setCurrentLabel(const QString& label)
{
    const QSignalBlocker quiet(this);
    for (int tab = 0; tab < count(); ++tab) {
        if (tabText(tab).compare(label, Qt::CaseInsensitive) == 0)
            return setCurrentIndex(tab);
    }
}

} // namespace widgets
