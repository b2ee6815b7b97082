// A table that is painted line by line in a frame that scrolls. It knows its current line and those
// that are chosen, the keys that change them, and tells assistive programs what stands in it.
//
// Lines count from 1; line 0 is the header, or no line at all. Columns count from 0. Heights and
// widths are pixels of the surface as it is scrolled now.
#pragma once

#include <QWidget>

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/scherm/schuifblad.h"

namespace plexoran {

class Tabelvlak : public QWidget {
    Q_OBJECT

  public:
    /// `pixelsPerStand` is how far one unit of the standing bar moves the lines.
    Tabelvlak(const Schuifkader& kader, const QString& gesproken, QWidget* ouder,
              double pixelsPerStand = 1);

    [[nodiscard]] virtual int Regels() const = 0;
    [[nodiscard]] virtual int Kolommen() const = 0;
    [[nodiscard]] virtual QString Celtekst(int regel, int kolom) const = 0;
    /// Where a line from 1 on begins; also of the one after the last.
    [[nodiscard]] virtual double Boven(int regel) const = 0;
    /// Where a column begins; also of the one after the last.
    [[nodiscard]] virtual double Links(int kolom) const = 0;
    /// Where the header ends, which is as high as a line.
    [[nodiscard]] virtual double Koponder() const = 0;

    [[nodiscard]] QRect Plek(int regel, int kolom) const;
    /// The line at a height; 0 above the first and below the last.
    [[nodiscard]] int RegelOp(double y) const;

    [[nodiscard]] int Regel() const { return regel_; }
    /// In order. The current line alone, but where more can be chosen.
    [[nodiscard]] const std::vector<int>& Gekozen() const { return gekozen_; }
    [[nodiscard]] bool IsGekozen(int regel) const
    {
        return std::binary_search(gekozen_.begin(), gekozen_.end(), regel);
    }
    /// Whether the choice is anything else than the current line.
    [[nodiscard]] bool IsMeer() const
    {
        return gekozen_.size() > 1 || (regel_ > 0 && !IsGekozen(regel_));
    }
    /// Chooses this line alone; 0 for none.
    void KiesRegel(int regel);
    /// Shows and speaks the current line and the choice, which is in order.
    virtual void Kies(int regel, std::vector<int> gekozen);
    void BrengInBeeld(int regel);
    /// Tells assistive programs that other lines are shown.
    void MeldAndereRegels();
    /// When the key is one that moves the choice or scrolls sideways, it does so.
    bool KiesMet(int toets, Qt::KeyboardModifiers bij = {});
    /// The same for a list that is there to be read: the lines scroll along with the choice.
    bool LeesMet(int toets);

  signals:
    void keuzeVeranderd();

  protected:
    /// From now on Shift and Ctrl choose more than one line.
    void ZetMeerkeus() { meerkeus_ = true; }
    /// A text that does not fit its column can be read in a tool tip.
    bool event(QEvent* gebeurtenis) override;
    void mousePressEvent(QMouseEvent* gebeurtenis) override;

    /// Whether the column is too narrow for the text there.
    [[nodiscard]] virtual bool IsIngekort(int regel, int kolom) const;
    [[nodiscard]] double Regelhoogte() const { return Boven(2) - Boven(1); }
    [[nodiscard]] const Schuifkader& Kader() const { return kader_; }
    /// The first and the last line that show in this part, as far as there are lines.
    [[nodiscard]] std::pair<int, int> RegelsIn(const QRect& deel) const;
    /// A frame around the chosen line, inside the lines of the table, which are so thick.
    void TekenKeus(QPainter& schilder, int lijn) const;

  private:
    [[nodiscard]] int Doelregel(int toets) const;
    void KiesTot(int regel);
    void Wissel(int regel);
    [[nodiscard]] QString TeLangeTekst(QPoint plek) const;
    void Beschrijf();
    // For assistive programs (tabelspreker.cpp)
    static void LaatSpreken();
    void MeldKeus();

    const Schuifkader& kader_;
    double pixelsPerStand_;
    bool meerkeus_ = false;
    int regel_ = 0;
    std::vector<int> gekozen_;
    int anker_ = 0;        ///< from where Shift chooses
    int laatsteRegel_ = 0; ///< where the arrows go on when nothing is chosen any more
};

} // namespace plexoran
