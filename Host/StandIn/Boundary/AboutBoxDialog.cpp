#include <Zelkor/App/AboutBoxDialog.h>

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFocusEvent>
#include <QFontInfo>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace Zelkor::StandIn {

namespace {

const QString HOME_PAGE = QStringLiteral("https://example.com/");
const QString MAIL_TO = QStringLiteral("mailto:support@example.com");

constexpr qreal PRODUCT_FONT_SCALE = 1.5;

// A label that focuses its link as soon as it receives focus by Tab. QLabel needs a second Tab.
class LinkLabel : public QLabel
{
    // Searching backwards, QLabel finds the same link again and would keep the focus.
    bool focusNextPrevChild(bool next) override
    {
        return hasSelectedText() ? QWidget::focusNextPrevChild(next) : QLabel::focusNextPrevChild(next);
    }

    void focusInEvent(QFocusEvent* event) override
    {
        QLabel::focusInEvent(event);
        if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
            focusNextPrevChild(event->reason() == Qt::TabFocusReason);
    }
};

QLabel* MakeLabel(const char* objectName, const QString& text)
{
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(objectName));
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

// Larger than the text of the dialog. The label inherits the attributes that are not set here.
QFont HeadingFont(const QFont& textFont)
{
    QFont font;
    font.setBold(true);
    font.setPointSizeF(QFontInfo(textFont).pointSizeF() * PRODUCT_FONT_SCALE);
    return font;
}

void OpenLink(const QString& link)
{
    static const QStringList ALLOWED = {QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto")};
    const QUrl url(link);
    if (ALLOWED.contains(url.scheme()))
        QDesktopServices::openUrl(url);
}

QLabel* MakeLinkLabel(const char* objectName)
{
    auto* label = new LinkLabel;
    label->setObjectName(QLatin1String(objectName));
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    label->setOpenExternalLinks(false);
    QObject::connect(label, &QLabel::linkActivated, label, OpenLink);
    return label;
}

void SetLink(QLabel* label, const QString& link, const QString& text)
{
    label->setText(QStringLiteral("<a href=\"%1\">%2</a>").arg(link.toHtmlEscaped(), text.toHtmlEscaped()));
}

} // namespace

} // namespace Zelkor::StandIn

namespace Zelkor::App {

struct AboutBoxDialog::Parts
{
    QString product;
    QLabel* heading = nullptr;
    QLabel* homePage = nullptr;
    QLabel* mailTo = nullptr;
    QLabel* custom = nullptr;
    QPushButton* ok = nullptr;
};

AboutBoxDialog::AboutBoxDialog(const QString& product, const QString& version, const QString& legal, QWidget* parent)
    : QDialog(parent), parts(new Parts)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    QLabel* legalLabel = StandIn::MakeLabel("legalLabel", legal);
    legalLabel->setWordWrap(true);

    parts->product = product;
    parts->heading = StandIn::MakeLabel("productLabel", product);
    parts->heading->setFont(StandIn::HeadingFont(font()));
    parts->homePage = StandIn::MakeLinkLabel("homePageLabel");
    parts->mailTo = StandIn::MakeLinkLabel("mailToLabel");
    parts->custom = StandIn::MakeLinkLabel("customURL");
    parts->custom->hide();
    // Not a standard button, because Qt translates those on its own.
    auto* buttons = new QDialogButtonBox;
    parts->ok = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    parts->ok->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    const int space = layout->spacing() < 0 ? fontMetrics().height() / 2 : layout->spacing();
    layout->addWidget(parts->heading);
    layout->addWidget(StandIn::MakeLabel("versionLabel", version));
    layout->addSpacing(space);
    layout->addWidget(parts->homePage);
    layout->addWidget(parts->mailTo);
    layout->addWidget(parts->custom);
    layout->addSpacing(space);
    layout->addWidget(legalLabel);
    layout->addSpacing(space);
    layout->addWidget(buttons);
    // Follows the size of the texts in any language and font.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    Retranslate();
}

AboutBoxDialog::~AboutBoxDialog() = default;

void AboutBoxDialog::SetCustomUrl(const QUrl& url)
{
    if (!url.isEmpty())
        StandIn::SetLink(parts->custom, url.toString(QUrl::FullyEncoded), url.toDisplayString());
    parts->custom->setVisible(!url.isEmpty());
}

void AboutBoxDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    if (event->type() == QEvent::FontChange)
        parts->heading->setFont(StandIn::HeadingFont(font()));
    QDialog::changeEvent(event);
}

// Focuses the button again when the dialog is reopened after a link had the focus.
void AboutBoxDialog::showEvent(QShowEvent* event)
{
    parts->ok->setFocus();
    QDialog::showEvent(event);
}

// Some styles and windows start a drag on ignored presses.
void AboutBoxDialog::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void AboutBoxDialog::Retranslate()
{
    setWindowTitle(tr("About %1").arg(parts->product));
    StandIn::SetLink(parts->homePage, StandIn::HOME_PAGE, tr("Visit the home page"));
    StandIn::SetLink(parts->mailTo, StandIn::MAIL_TO, tr("Write to support"));
    parts->ok->setText(tr("OK"));
}

} // namespace Zelkor::App
