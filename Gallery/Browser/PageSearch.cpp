#include "PageSearch.h"

#include <Catalogue/Catalogue.h>
#include <Catalogue/QtWidgets.h>

#include <QMetaMethod>
#include <QWidget>

#include <algorithm>
#include <map>

namespace Zelkor::Gallery {

namespace {

/// Words for widgets that neither their names nor their descriptions contain.
const std::map<QString, const char*> KEYWORDS = {
    {"ButtonWithPopUpContainer", "dropdown popup flyout popover menu"},
    {"ButtonWithPopUpList", "dropdown popup menu split button"},
    {"ButtonWithLabels", "shortcut label"},
    {"ClickSoundComboBox", "dropdown select"},
    {"ColorButton", "picker palette color"},
    {"CountdownIndicatorWidget", "timer clock"},
    {"CustomTitleBar", "frameless caption client-side decoration"},
    {"HorizontalTabBar", "icon"},
    {"MaskedToolTip", "tooltip balloon callout notification"},
    {"PixmapWidget", "avatar image photo round crop"},
    {"QLedMatrix", "display dots pixels"},
    {"QtWidgets",
     "QPushButton QCheckBox QRadioButton QToolButton QLineEdit QTextEdit QSpinBox QDateEdit QComboBox QDial "
     "QProgressBar QTreeView QTableView QListView QHeaderView QCalendarWidget QMenu QTabWidget QToolBox "
     "QDockWidget QMdiArea QSplitter QStatusBar QWizard QDialog"},
    {"ResizableStackedWidget", "pages wizard"},
    {"ScrollablePanelWithItem", "toolbar carousel"},
    {"SliderWithTickLabels", "steps quality"},
    {"VolumeSlider", "audio vu peak microphone gain"},
    {"WebCameraPreviewStream", "webcam video capture"},
    {"VideoPreviewWidget", "camera image player"},
    {"ZComboBox", "dropdown select"},
    {"ZGraphicsShadowEffect", "blur glow vignette"},
    {"ZLabel", "ellipsis truncate elide"},
    {"ZLineEdit", "text input ellipsis"},
    {"ZRuntimeStylesheetEditor", "qss css code theme"},
    {"ZSlider", "range handles marks trim cut"},
    {"ZTimelineSlider", "seek scrub player range"},
    {"ZTimeEdit", "timecode hours minutes seconds"},
    {"ZWindowChrome", "frameless resize border"},
};

// Whether our class or one of ours below it declares a member, and not Qt.
bool IsOfQt(const QMetaObject* meta)
{
    return *meta->className() == 'Q' && !Catalogue::FindEntry(meta->className());
}

QStringList MembersOf(const QObject& object)
{
    QStringList members;
    for (const QMetaObject* meta = object.metaObject(); !IsOfQt(meta); meta = meta->superClass()) {
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
            members.append(meta->property(i).name());
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                members.append(meta->method(i).name() + "()");
        }
    }
    for (const QObject* part : object.findChildren<QObject*>()) {
        if (!part->objectName().isEmpty() && !part->objectName().startsWith("qt_"))
            members.append('#' + part->objectName());
    }
    members.removeDuplicates();
    return members;
}

bool ContainsAll(const QString& text, const QStringList& words)
{
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace

QVector<PageSearch::Hit> PageSearch::Find(const QString& text)
{
    if (pages.isEmpty())
        Fill();
    const QStringList words = text.split(' ', Qt::SkipEmptyParts);
    QVector<Hit> hits;
    for (const Page& page : pages) {
        const auto member = std::find_if(page.members.begin(), page.members.end(),
                                         [&](const QString& name) { return ContainsAll(name, words); });
        if (ContainsAll(page.name, words))
            hits.append({page.name, NAME, {}});
        else if (ContainsAll(page.name + ' ' + page.description, words))
            hits.append({page.name, DESCRIPTION, {}});
        else if (member != page.members.end())
            hits.append({page.name, MEMBER, *member});
    }
    std::stable_sort(hits.begin(), hits.end(), [](const Hit& a, const Hit& b) { return a.reason < b.reason; });
    return hits;
}

void PageSearch::Fill()
{
    for (const Catalogue::Entry& entry :
         Catalogue::Entries() + QVector<Catalogue::Entry>{Catalogue::QtWidgetsEntry()}) {
        QWidget parent;
        const auto keywords = KEYWORDS.find(entry.className);
        pages.append(
            {entry.className,
             entry.group + ' ' + entry.description + ' ' + (keywords == KEYWORDS.end() ? "" : keywords->second),
             MembersOf(*CreateBare(entry, &parent))});
    }
}

} // namespace Zelkor::Gallery
