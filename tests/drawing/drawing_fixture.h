// Charts and dials on the shipped tables and pictures, with settings of the test's own.
#pragma once

#include "bundle.h"
#include "constantes.h"
#include "mac_toolies.h"
#include "sample_rows.h"
#include "user_defaults.h"

#include <QColor>
#include <QImage>

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

class drawing_test : public testing::Test {
  protected:
    void use_metric(bool metric) { settings.set_boolean(KS_METRIC_UNITS_KEY, metric); }

    void file(sample_rows& rows, std::size_t parameter, std::string_view reply) {
        rows.file(parameter, reply, decoder.translate_once(reply));
    }

    bundle resources;
    user_defaults settings{"/nonexistent/kestrom-drawing-test.conf"};
    toolkit_doors doors{&resources, &settings, nullptr, nullptr};
    mac_toolies decoder{doors};
};

// The pixel at image units (x, y), y upwards.
inline QColor pixel_at(const QImage& image, double x, double y) {
    const double scale = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(x * scale),
                            static_cast<int>(image.height() - 1 - std::floor(y * scale)));
}

inline bool near_colour(QColor a, QColor b, int tolerance = 12) {
    return std::abs(a.red() - b.red()) <= tolerance &&
           std::abs(a.green() - b.green()) <= tolerance &&
           std::abs(a.blue() - b.blue()) <= tolerance;
}
