#pragma once

#include <QIcon>
#include <QString>

#include <optional>

/// A style sheet with its icons, which it names as `url(vxstyle:NAME.svg)`. GUI thread; needs a `QApplication`.
struct ZStyleSheet
{
    QString text;
    QString iconFolder; ///< where NAME.svg is looked for; a folder or a resource path

    /// Loads a sheet and applies it: `ZStyleSheet::applyFile(":/Styles/Dark.qss")`. Returns false, sets `error` and
    /// keeps the current sheet when it cannot be read.
    static bool applyFile(const QString& fileName, QString* error = nullptr);

    /// Applies one of two sheets by the light or dark setting of the system, now and after each change, until another
    /// sheet is applied. Returns false, sets `error` and keeps the current sheet when one of them cannot be read.
    ///
    /// Where Qt does not report the setting, this applies the light sheet, or the dark one if the palette of the
    /// platform is dark. Docs/StyleSheets.md lists which systems report it.
    static bool followSystem(const QString& lightFile, const QString& darkFile, QString* error = nullptr);

    /// Reads a sheet from a file or a resource. Its icons are in the folder of the same name beside it: `Dark/` for
    /// `Dark.qss`. Returns nothing and sets `error` when the sheet cannot be read.
    static std::optional<ZStyleSheet> load(const QString& fileName, QString* error = nullptr);

    /// Sets the sheet and its icons for the application and ends followSystem(). The style below the sheet is "Fusion",
    /// which draws the same on all platforms. From then on, rules with the selector `[layoutDirection="1"]` follow the
    /// layout direction at run time.
    ///
    /// Rules with the selectors `QPalette` and `QPalette:disabled` set the application's palette: each
    /// `qproperty-ROLE: COLOUR` sets a QPalette::ColorRole by its name. Without such rules the palette is unchanged.
    void apply() const;

    /// The icon NAME of this sheet in its plain and its disabled tint (NAME-disabled.svg).
    QIcon ownIcon(const QString& name) const;

    /// The icon NAME of the sheet applied last. It follows when another one is applied.
    static QIcon icon(const QString& name);

    /// As icon(), in the tint for accent-coloured backgrounds (NAME-on-accent.svg).
    static QIcon iconOnAccent(const QString& name);
};
