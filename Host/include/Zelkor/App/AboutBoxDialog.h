#pragma once

#include <Zelkor/HostExport.h>

#include <QDialog>

#include <memory>

class QUrl;

namespace Zelkor::App {

/// The application's about dialog: product, version, legal text and three links.
///
/// Object names of the parts: "productLabel", "versionLabel", "legalLabel", and for the links, whose texts are
/// rich-text anchors, "homePageLabel", "mailToLabel" and "customURL". Links open through the desktop's handler, and
/// only http, https and mailto; the Tab key reaches them. A mouse press beside the links closes nothing and drags
/// nothing.
class VX_HOST_EXPORT AboutBoxDialog : public QDialog
{
    Q_OBJECT

public:
    /// `product` is the product's name, `version` the version text, `legal` the copyright line.
    AboutBoxDialog(const QString& product, const QString& version, const QString& legal, QWidget* parent);
    ~AboutBoxDialog() override;

    /// A third link below the two that are always there, none by default: its label hides while `url` is empty.
    void SetCustomUrl(const QUrl& url);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    struct Parts;
    std::unique_ptr<Parts> parts;

    void Retranslate();
};

} // namespace Zelkor::App
