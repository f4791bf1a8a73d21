#include "views/FullView.h"

#include "core/date_patterns.h"
#include "core/frame.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/shell.h"
#include "views/category_tree.h"
#include "views/full_view_edit.h"
#include "views/full_view_layout.h"
#include "views/full_view_sql.h"
#include "views/keyword_panel.h"
#include "views/list_editing.h"
#include "views/record_texts.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/picture_box.h"
#include "widgets/record_list.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShowEvent>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr FullViewKind kFullView{QT_TRANSLATE_NOOP("views", "Full view"), u"Contacts Full View", u"FullView"};

} // namespace
