// A painting device that keeps no picture but the texts that were painted, and where.
#pragma once

#include <QPaintDevice>
#include <QPaintEngine>

#include <string>
#include <vector>

namespace plexoran {

struct Getekend {
    std::string tekst;
    double x = 0; ///< left end of the base line
    double y = 0;
    double breed = 0;
    bool vet = false;
};

class Tekstvanger : public QPaintDevice {
  public:
    explicit Tekstvanger(QSize maat) : maat_(maat) {}

    [[nodiscard]] QPaintEngine* paintEngine() const override { return &motor_; }
    [[nodiscard]] const std::vector<Getekend>& Teksten() const { return motor_.teksten; }
    [[nodiscard]] const std::vector<QLineF>& Lijnen() const { return motor_.lijnen; }

  protected:
    [[nodiscard]] int metric(PaintDeviceMetric soort) const override
    {
        switch (soort) {
        case PdmWidth:
        case PdmWidthMM:
            return maat_.width();
        case PdmHeight:
        case PdmHeightMM:
            return maat_.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDevicePixelRatio:
            return 1;
        default:
            return QPaintDevice::metric(soort);
        }
    }

  private:
    class Motor : public QPaintEngine {
      public:
        Motor() : QPaintEngine(AllFeatures) {}
        bool begin(QPaintDevice* /*apparaat*/) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState& /*stand*/) override {}
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
        void drawRects(const QRectF*, int) override {}
        void drawLines(const QLineF* eerste, int aantal) override
        {
            lijnen.insert(lijnen.end(), eerste, eerste + aantal);
        }
        void drawLines(const QLine* eerste, int aantal) override
        {
            for (int i = 0; i < aantal; ++i)
                lijnen.emplace_back(eerste[i]);
        }
        void drawTextItem(const QPointF& plek, const QTextItem& deel) override
        {
            teksten.push_back(
                {deel.text().toStdString(), plek.x(), plek.y(), deel.width(), deel.font().bold()});
        }
        [[nodiscard]] Type type() const override { return User; }

        std::vector<Getekend> teksten;
        std::vector<QLineF> lijnen;
    };

    QSize maat_;
    mutable Motor motor_;
};

} // namespace plexoran
