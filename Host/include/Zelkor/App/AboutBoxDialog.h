#pragma once

#include <Zelkor/HostExport.h>

#include <QDialog>

#include <memory>

class QUrl;

namespace Zelkor::App {

/// The about dialog of the application, with product, version, legal text and up to three links.
///
/// The object names of the labels are "productLabel", "versionLabel" and "legalLabel", and for the links
/// "homePageLabel", "mailToLabel" and "customURL". The links are rich-text anchors and can be reached by Tab. They open
/// with `QDesktopServices`, and only if the scheme is http, https or mailto. The dialog accepts mouse presses beside
/// the links, so that they neither close nor drag it.
class VX_HOST_EXPORT AboutBoxDialog : public QDialog
{
    Q_OBJECT

public:
    /// `product` is the name of the product, `version` the version text and `legal` the copyright line, all in plain
    /// text.
    AboutBoxDialog(const QString& product, const QString& version, const QString& legal, QWidget* parent);
    ~AboutBoxDialog() override;

    /// Sets the third link, shown below the other two. An empty `url`, the default, hides its label.
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
