#include <UI/Kit/Internal/SystemColorScheme.h>

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QPointer>
#include <QSettings>
#include <QStyleHints>

namespace Zelkor::Vx::UI::Kit {

namespace {

// Returns whether the text is lighter than the window in the palette of the platform.
bool IsPlatformPaletteDark()
{
    const QPalette ofApplication = QApplication::palette();
    QApplication::setPalette(QPalette());
    const QPalette ofPlatform = QApplication::palette();
    QApplication::setPalette(ofApplication);
    return ofPlatform.color(QPalette::WindowText).lightness() > ofPlatform.color(QPalette::Window).lightness();
}

bool IsSystemDark()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    const Qt::ColorScheme scheme = QGuiApplication::styleHints()->colorScheme();
    if (scheme != Qt::ColorScheme::Unknown)
        return scheme == Qt::ColorScheme::Dark;
#elif defined(Q_OS_WIN)
    // The palette has the classic system colours, which are always light.
    static const char KEY[] = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";
    return QSettings(KEY, QSettings::NativeFormat).value("AppsUseLightTheme", 1).toInt() == 0;
#endif
    return IsPlatformPaletteDark();
}

bool MayFollowChange(QEvent::Type type)
{
    switch (type) {
    case QEvent::ApplicationPaletteChange:
    case QEvent::ThemeChange:
        return true;
#if defined(Q_OS_WIN)
    case QEvent::ApplicationActivate:
        return true;
#endif
    default:
        return false;
    }
}

} // namespace

SystemColorScheme::SystemColorScheme(std::function<void(bool)> use, QObject* parent)
    : QObject(parent), use(std::move(use)), isDark(IsSystemDark())
{
    this->use(isDark);
    isUpdating = false;
    qApp->installEventFilter(this);
}

bool SystemColorScheme::eventFilter(QObject* object, QEvent* event)
{
    if (!isUpdating && MayFollowChange(event->type())) {
        isUpdating = true;
        QMetaObject::invokeMethod(
            this, [this] { Update(); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(object, event);
}

// Reading the palette and applying a style sheet send events of the same types.
void SystemColorScheme::Update()
{
    const bool wasDark = isDark;
    isDark = IsSystemDark();
    if (isDark != wasDark) {
        // The application may apply another sheet, which deletes this object, when its palette changes.
        const QPointer<SystemColorScheme> self(this);
        const auto useCopy = use;
        useCopy(isDark);
        if (!self)
            return;
    }
    isUpdating = false;
}

} // namespace Zelkor::Vx::UI::Kit
