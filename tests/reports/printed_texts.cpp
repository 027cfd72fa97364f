#include "tests/reports/printed_texts.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

#include <cmath>

#include "reports/report_document.h"

namespace verdane::testing {

namespace {

constexpr double points_per_mm = 72 / 25.4;

/// Stores the texts that are painted and draws nothing. One unit of the device is one millimetre.
class text_collector : public QPaintEngine {
public:
    text_collector() : QPaintEngine(QPaintEngine::AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    Type type() const override { return User; }

    void drawTextItem(const QPointF&, const QTextItem& item) override
    {
        const double scale = std::sqrt(std::abs(painter()->transform().determinant()));
        texts.push_back({item.text(), item.font().pixelSize() * scale * points_per_mm});
    }

    std::vector<printed_text> texts;
};

class collecting_device : public QPaintDevice {
public:
    QPaintEngine* paintEngine() const override { return &engine_; }
    const std::vector<printed_text>& texts() const { return engine_.texts; }

protected:
    int metric(PaintDeviceMetric which) const override
    {
        switch (which) {
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 25;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 1000;
        }
    }

private:
    mutable text_collector engine_;
};

}  // namespace

std::vector<printed_text> printed_texts(const report_document& document)
{
    collecting_device device;
    QPainter painter(&device);
    for (int page = 0; page < document.page_count(); ++page)
        document.paint(painter, page);
    painter.end();
    return device.texts();
}

}  // namespace verdane::testing
