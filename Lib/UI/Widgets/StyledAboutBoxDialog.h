#pragma once

#include <UI/Common/Export.h>

#include <Zelkor/App/AboutBoxDialog.h>

#include <QString>

namespace Zelkor::Vx::UI {

/// The host's about dialog, with links that a style sheet can style.
///
/// Child widgets and object names are those of `AboutBoxDialog`. Links keep their style when the language changes. Set
/// the property again after changing a link. GUI thread only.
class VX_WIDGETS_EXPORT StyledAboutBoxDialog : public App::AboutBoxDialog
{
    Q_OBJECT
    Q_PROPERTY(QString linkStyle MEMBER linkStyle WRITE SetLinkStyle)
    ///< CSS declarations for the links, such as "color: #86aaff", inserted unescaped; default empty

public:
    /// Passes the texts to `AboutBoxDialog`.
    StyledAboutBoxDialog(const QString& product, const QString& version, const QString& legal, QWidget* parent);
    ~StyledAboutBoxDialog() override;

    /// Shows a modeless dialog, which deletes itself when it is closed.
    static void ShowAbout(const QString& product, const QString& version, const QString& legal, QWidget* parent);

protected:
    bool event(QEvent* event) override;

private:
    void SetLinkStyle(const QString& style);

    QString linkStyle;
};

} // namespace Zelkor::Vx::UI
