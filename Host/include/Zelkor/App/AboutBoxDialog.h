#pragma once

#include <Zelkor/HostExport.h>

#include <QDialog>

namespace Zelkor::App {

/// The application's about dialog: product, version, legal text and three links.
///
/// Object names of the parts: "productLabel", "versionLabel", "legalLabel", and for the links, whose texts are
/// rich-text anchors, "homePageLabel", "mailToLabel" and "customURL". Links open through the desktop's handler, and
/// only http, https and mailto. A mouse press beside the links closes nothing and drags nothing.
class VX_HOST_EXPORT AboutBoxDialog : public QDialog
{
    Q_OBJECT

public:
    /// `product` is the product's name, `version` the version text, `legal` the copyright line.
    AboutBoxDialog(const QString& product, const QString& version, const QString& legal, QWidget* parent);
    ~AboutBoxDialog() override;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    struct Parts;
    Parts* parts;

    void Retranslate();
};

} // namespace Zelkor::App
