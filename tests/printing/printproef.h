// Print tables for tests, as wide and as long as a test wants them, and what the windows of
// printing show of them.
#pragma once

#include <QDialog>
#include <QPainter>
#include <QPdfWriter>
#include <QRadioButton>
#include <QSpinBox>

#include "hulp/pdfteksten.h"
#include "hulp/tabelmaker.h"
#include "hulp/venstergrepen.h"
#include "printing/printtabel.h"

namespace plexoran {

/// `aantal` players of Gr01- with this surname; first names count from 1.
inline Spelertabel MaakPrintspelers(int aantal, const Tekst& achternaam = "Bos")
{
    std::vector<Proefspeler> spelers(static_cast<std::size_t>(aantal));
    for (std::size_t i = 0; i < spelers.size(); ++i)
        spelers[i] = {.key = std::to_string(100'001 + i),
                      .groep = "Gr01-",
                      .voornaam = "v" + std::to_string(i + 1),
                      .achternaam = achternaam};
    return MaakTabel(spelers);
}

inline Printtabel AlleenNaam(const Spelertabel& tabel)
{
    return MaakPrinttabel(
        tabel, {.groepscode = "Gr01-", .subgroepen = {}, .kolommen = {Kolom::Achternaam}});
}

/// The page in view, enlarged so many times, drawn on paper of its size at 100 % and read back.
inline Pdfblad BladInBeeld(QWidget& vlak, const std::filesystem::path& bestand, int zoom = 1)
{
    {
        QPdfWriter pdf(QString::fromStdString(bestand.string()));
        pdf.setResolution(96 * zoom);
        pdf.setPageSize(QPageSize(QSizeF(vlak.size()) * 72.0 / (96.0 * zoom), QPageSize::Point));
        pdf.setPageMargins({});
        QPainter schilder(&pdf);
        vlak.render(&schilder, {}, {}, QWidget::RenderFlags());
    }
    return LeesPdf(bestand).at(0);
}

/// In the print dialog.
inline void KiesReeks(const QDialog& dialoog, int van, int tot)
{
    Vind<QRadioButton>(dialoog, "printRange")->setChecked(true);
    Vind<QSpinBox>(dialoog, "from")->setValue(van);
    Vind<QSpinBox>(dialoog, "to")->setValue(tot);
}

} // namespace plexoran
