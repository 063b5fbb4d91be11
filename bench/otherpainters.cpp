// The same page painted by others, without antialiasing where they can do without: Qt's painter,
// Cairo, AGG and rlottie. Each fills the outlines and draws their outline a pixel wide.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <functional>

#ifdef BENCH_CAIRO
#include <cairo.h>
#endif
#ifdef BENCH_AGG
#include <agg_conv_curve.h>
#include <agg_conv_stroke.h>
#include <agg_path_storage.h>
#include <agg_pixfmt_rgba.h>
#include <agg_rasterizer_scanline_aa.h>
#include <agg_renderer_scanline.h>
#include <agg_scanline_bin.h>
#endif
#ifdef BENCH_RLOTTIE
#include <rlottie.h>
#endif

void RegisterOtherPainters(const std::string& page, const QVector<QPainterPath>& glyphs,
                           const QVector<QPointF>& places, QSize size);

namespace {

// What a painter does with a page, glyph by glyph unless it takes the page as one path.
typedef std::function<void(QImage& picture, const QPainterPath& text)> PaintPage;

void WithQt(QImage& picture, const QPainterPath& text)
{
    QPainter painter(&picture);
    painter.setPen(QPen(QBrush(Qt::white), 0));
    painter.setBrush(Qt::white);
    painter.drawPath(text);
}

// Calls the operation of each element.
template <typename Move, typename Line, typename Curve>
void Trace(const QPainterPath& path, Move move, Line line, Curve curve)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element& e = path.elementAt(i);
        if (e.isMoveTo()) {
            move(e);
        } else if (e.isLineTo()) {
            line(e);
        } else if (e.isCurveTo()) {
            curve(e, path.elementAt(i + 1), path.elementAt(i + 2));
            i += 2;
        }
    }
}

#ifdef BENCH_CAIRO
void WithCairo(QImage& picture, const QPainterPath& text)
{
    cairo_surface_t* surface =
        cairo_image_surface_create_for_data(picture.bits(), CAIRO_FORMAT_ARGB32, picture.width(),
                                            picture.height(), picture.bytesPerLine());
    cairo_t* cairo = cairo_create(surface);
    cairo_set_antialias(cairo, CAIRO_ANTIALIAS_NONE);
    cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_EVEN_ODD);
    cairo_set_source_rgb(cairo, 1, 1, 1);
    cairo_set_line_width(cairo, 1);
    Trace(
        text, [&](QPointF p) { cairo_move_to(cairo, p.x(), p.y()); },
        [&](QPointF p) { cairo_line_to(cairo, p.x(), p.y()); },
        [&](QPointF a, QPointF b, QPointF p) {
            cairo_curve_to(cairo, a.x(), a.y(), b.x(), b.y(), p.x(), p.y());
        });
    cairo_fill_preserve(cairo);
    cairo_stroke(cairo);
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
}
#endif

#ifdef BENCH_AGG
void WithAgg(QImage& picture, const QPainterPath& text)
{
    agg::rendering_buffer buffer(picture.bits(), unsigned(picture.width()),
                                 unsigned(picture.height()), picture.bytesPerLine());
    agg::pixfmt_bgra32 format(buffer);
    agg::renderer_base<agg::pixfmt_bgra32> base(format);
    agg::path_storage path;
    Trace(
        text, [&](QPointF p) { path.move_to(p.x(), p.y()); },
        [&](QPointF p) { path.line_to(p.x(), p.y()); },
        [&](QPointF a, QPointF b, QPointF p) {
            path.curve4(a.x(), a.y(), b.x(), b.y(), p.x(), p.y());
        });
    agg::conv_curve<agg::path_storage> curves(path);
    agg::conv_stroke<agg::conv_curve<agg::path_storage>> outline(curves);
    outline.width(1);
    agg::rasterizer_scanline_aa<> rasterizer;
    rasterizer.filling_rule(agg::fill_even_odd);
    agg::scanline_bin line;
    const agg::rgba8 white(255, 255, 255);
    rasterizer.add_path(curves);
    agg::render_scanlines_bin_solid(rasterizer, line, base, white);
    rasterizer.filling_rule(agg::fill_non_zero);
    rasterizer.add_path(outline);
    agg::render_scanlines_bin_solid(rasterizer, line, base, white);
}
#endif

#ifdef BENCH_RLOTTIE
// A Lottie animation of two frames whose shapes are the text's contours.
std::string Lottie(const QPainterPath& text, QSize size)
{
    const auto pair = [](QPointF p) { return QStringLiteral("[%1,%2]").arg(p.x()).arg(p.y()); };
    QStringList shapes, vertices, in, out;
    const auto finish = [&] {
        if (!vertices.isEmpty())
            shapes.append(QStringLiteral("{\"ty\":\"sh\",\"ks\":{\"a\":0,\"k\":{\"c\":true,"
                                         "\"v\":[%1],\"i\":[%2],\"o\":[%3]}}}")
                              .arg(vertices.join(','), in.join(','), out.join(',')));
        vertices = in = out = QStringList();
    };
    QPointF last;
    const auto add = [&](QPointF vertex, QPointF handle = {}) {
        vertices.append(pair(vertex));
        in.append(pair(handle));
        out.append(pair({}));
        last = vertex;
    };
    Trace(
        text,
        [&](QPointF p) {
            finish();
            add(p);
        },
        [&](QPointF p) { add(p); },
        [&](QPointF a, QPointF b, QPointF p) {
            out.last() = pair(a - last);
            add(p, b - p);
        });
    finish();
    const QString color = "\"c\":{\"a\":0,\"k\":[1,1,1,1]},"
                          "\"o\":{\"a\":0,\"k\":100}";
    // Moved by a pixel from frame to frame: it would cache what does not move.
    const QString moves =
        "\"p\":{\"a\":1,\"k\":[{\"t\":0,\"s\":[0,0],\"e\":[2,0],\"i\":{\"x\":1,\"y\":1},"
        "\"o\":{\"x\":0,\"y\":0}},{\"t\":2}]}";
    return QStringLiteral(
               "{\"v\":\"5.5.2\",\"fr\":15,\"ip\":0,\"op\":2,\"w\":%1,\"h\":%2,\"layers\":[{"
               "\"ty\":4,\"ip\":0,\"op\":2,\"st\":0,\"ks\":{%5},\"shapes\":[{\"ty\":\"gr\",\"it\":["
               "%"
               "3,"
               "{\"ty\":\"fl\",\"r\":2,%4},{\"ty\":\"st\",\"w\":{\"a\":0,\"k\":1},%4},"
               "{\"ty\":\"tr\"}]}]}]}")
        .arg(size.width())
        .arg(size.height())
        .arg(shapes.join(','), color, moves)
        .toStdString();
}
#endif

} // namespace

void RegisterOtherPainters(const std::string& page, const QVector<QPainterPath>& glyphs,
                           const QVector<QPointF>& places, QSize size)
{
    QPainterPath text;
    for (int i = 0; i < glyphs.size(); ++i)
        text.addPath(glyphs[i].translated(places[i]));
    const auto add = [&](const char* name, const PaintPage& paint) {
        benchmark::RegisterBenchmark((page + "/page by " + name).c_str(),
                                     [=](benchmark::State& state) {
                                         QImage picture(size, QImage::Format_ARGB32_Premultiplied);
                                         for (auto _ : state) {
                                             picture.fill(0);
                                             paint(picture, text);
                                         }
                                     })
            ->MeasureProcessCPUTime(); // some have threads
    };
    add("Qt", WithQt);
#ifdef BENCH_CAIRO
    add("Cairo", WithCairo);
#endif
#ifdef BENCH_AGG
    add("AGG", WithAgg);
#endif
#ifdef BENCH_RLOTTIE
    std::shared_ptr<rlottie::Animation> animation =
        rlottie::Animation::loadFromData(Lottie(text, size), page, "", false);
    if (!animation)
        qFatal("rlottie does not take the page");
    const auto frame = std::make_shared<size_t>(0);
    add("rlottie", [animation, frame](QImage& picture, const QPainterPath&) {
        rlottie::Surface surface(reinterpret_cast<uint32_t*>(picture.bits()),
                                 size_t(picture.width()), size_t(picture.height()),
                                 size_t(picture.bytesPerLine()));
        animation->renderSync(++*frame % 2, surface);
    });
#endif
}
