#pragma once

#include <UI/Common/Export.h>

#include <Zelkor/App/AboutBoxDialog.h>

#include <QString>

namespace Zelkor::Vx::UI {

/// The application's about dialog, with links that a style sheet can style.
///
/// Parts and their object names are those of `AboutBoxDialog`. Links keep their style in whatever language; one that is
/// set while the dialog is open gets it when the property is set again. GUI thread only.
class VX_WIDGETS_EXPORT StyledAboutBoxDialog : public App::AboutBoxDialog
{
    Q_OBJECT
    /// CSS declarations for the links, "color: #86aaff" for instance; empty by default. They are inserted as they are.
    Q_PROPERTY(QString linkStyle MEMBER linkStyle WRITE SetLinkStyle)

public:
    /// The three texts go to `AboutBoxDialog` as they are.
    StyledAboutBoxDialog(const QString& product, const QString& version, const QString& legal, QWidget* parent);
    ~StyledAboutBoxDialog() override;

    /// Shows such a dialog and returns at once. The dialog deletes itself when it is closed, or with `parent`.
    static void ShowAbout(const QString& product, const QString& version, const QString& legal, QWidget* parent);

protected:
    bool event(QEvent* event) override;

private:
    void SetLinkStyle(const QString& style);

    QString linkStyle;
};

} // namespace Zelkor::Vx::UI
