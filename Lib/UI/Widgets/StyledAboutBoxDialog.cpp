#include <UI/Widgets/StyledAboutBoxDialog.h>

#include <QEvent>
#include <QLabel>

namespace Zelkor::Vx::UI {

namespace {

const QString STYLE_START = QStringLiteral("\" style=\"");
const QString TAG_END = QStringLiteral("\">");

// Replaces the style of the first link in `text`.
QString WithLinkStyle(QString text, const QString& style)
{
    const int oldStyle = text.indexOf(STYLE_START);
    const int oldEnd = text.indexOf(TAG_END);
    if (oldStyle >= 0 && oldStyle < oldEnd)
        text.remove(oldStyle, oldEnd - oldStyle);
    const int end = text.indexOf(TAG_END);
    if (end >= 0)
        text.insert(end + 1, QStringLiteral(" style=\"%1\"").arg(style));
    return text;
}

} // namespace

StyledAboutBoxDialog::StyledAboutBoxDialog(const QString& product, const QString& version, const QString& legal,
                                           QWidget* parent)
    : App::AboutBoxDialog(product, version, legal, parent)
{}

StyledAboutBoxDialog::~StyledAboutBoxDialog() = default;

void StyledAboutBoxDialog::ShowAbout(const QString& product, const QString& version, const QString& legal,
                                     QWidget* parent)
{
    auto* dialog = new StyledAboutBoxDialog(product, version, legal, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

bool StyledAboutBoxDialog::event(QEvent* event)
{
    const bool handled = App::AboutBoxDialog::event(event);
    // The base class has rewritten its links.
    if (event->type() == QEvent::LanguageChange && !linkStyle.isNull())
        SetLinkStyle(linkStyle);
    return handled;
}

void StyledAboutBoxDialog::SetLinkStyle(const QString& style)
{
    linkStyle = style;
    for (const char* name : {"homePageLabel", "mailToLabel", "customURL"}) {
        auto* label = findChild<QLabel*>(QLatin1String(name));
        if (label && !label->text().isEmpty())
            label->setText(WithLinkStyle(label->text(), style));
    }
}

} // namespace Zelkor::Vx::UI
