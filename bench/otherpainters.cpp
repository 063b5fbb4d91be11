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

// Calls the target's operation for each element.
template <typename Target>
void Trace(const QPainterPath& path, Target target)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element& e = path.elementAt(i);
        if (e.type == QPainterPath::MoveToElement) {
            target.Move(e);
        } else if (e.type == QPainterPath::LineToElement) {
            target.Line(e);
        } else if (e.type == QPainterPath::CurveToElement) {
            target.Curve(e, path.elementAt(i + 1), path.elementAt(i + 2));
            i += 2;
        }
    }
}

#ifdef BENCH_CAIRO
struct CairoTarget
{
    cairo_t* cairo;
    void Move(QPointF p) { cairo_move_to(cairo, p.x(), p.y()); }
    void Line(QPointF p) { cairo_line_to(cairo, p.x(), p.y()); }
    void Curve(QPointF a, QPointF b, QPointF p)
    {
        cairo_curve_to(cairo, a.x(), a.y(), b.x(), b.y(), p.x(), p.y());
    }
};

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
    Trace(text, CairoTarget{cairo});
    cairo_fill_preserve(cairo);
    cairo_stroke(cairo);
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
}
#endif

#ifdef BENCH_AGG
struct AggTarget
{
    agg::path_storage& path;
    void Move(QPointF p) { path.move_to(p.x(), p.y()); }
    void Line(QPointF p) { path.line_to(p.x(), p.y()); }
    void Curve(QPointF a, QPointF b, QPointF p)
    {
        path.curve4(a.x(), a.y(), b.x(), b.y(), p.x(), p.y());
    }
};

void WithAgg(QImage& picture, const QPainterPath& text)
{
    agg::rendering_buffer buffer(picture.bits(), unsigned(picture.width()),
                                 unsigned(picture.height()), picture.bytesPerLine());
    agg::pixfmt_bgra32 format(buffer);
    agg::renderer_base<agg::pixfmt_bgra32> base(format);
    agg::path_storage path;
    Trace(text, AggTarget{path});
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
    QStringList shapes;
    QStringList vertices, in, out;
    const auto pair = [](QPointF p) { return QStringLiteral("[%1,%2]").arg(p.x()).arg(p.y()); };
    const auto finish = [&] {
        if (!vertices.isEmpty())
            shapes.append(QStringLiteral("{\"ty\":\"sh\",\"ks\":{\"a\":0,\"k\":{\"c\":true,"
                                         "\"v\":[%1],\"i\":[%2],\"o\":[%3]}}}")
                              .arg(vertices.join(','), in.join(','), out.join(',')));
        vertices.clear();
        in.clear();
        out.clear();
    };
    struct Shape
    {
        std::function<void(QPointF, QPointF)> add; // a vertex, and its handle behind it
        std::function<void(QPointF)> leave;        // the handle ahead of the last vertex
        std::function<void()> finish;
        QPointF* last;
        void Move(QPointF p)
        {
            finish();
            add(p, {});
            *last = p;
        }
        void Line(QPointF p)
        {
            add(p, {});
            *last = p;
        }
        void Curve(QPointF a, QPointF b, QPointF p)
        {
            leave(a - *last);
            add(p, b - p);
            *last = p;
        }
    };
    QPointF last;
    Trace(text, Shape{[&](QPointF p, QPointF behind) {
                          vertices.append(pair(p));
                          in.append(pair(behind));
                          out.append(pair({}));
                      },
                      [&](QPointF ahead) { out.last() = pair(ahead); }, finish, &last});
    finish();
    const QString color = QStringLiteral("\"c\":{\"a\":0,\"k\":[1,1,1,1]},"
                                         "\"o\":{\"a\":0,\"k\":100}");
    // Moved by a pixel from frame to frame: it would cache what does not move.
    const QString moves = QStringLiteral(
        "\"p\":{\"a\":1,\"k\":[{\"t\":0,\"s\":[0,0],\"e\":[2,0],\"i\":{\"x\":1,\"y\":1},"
        "\"o\":{\"x\":0,\"y\":0}},{\"t\":2}]}");
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

void Page(benchmark::State& state, QSize size, const QPainterPath& text, const PaintPage& paint)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        picture.fill(0);
        paint(picture, text);
    }
}

} // namespace

void RegisterOtherPainters(const std::string& page, const QVector<QPainterPath>& glyphs,
                           const QVector<QPointF>& places, QSize size)
{
    QPainterPath text;
    for (int i = 0; i < glyphs.size(); ++i)
        text.addPath(glyphs[i].translated(places[i]));
    const auto add = [&](const char* name, const PaintPage& paint) {
        benchmark::RegisterBenchmark(
            (page + "/page by " + name).c_str(),
            [=](benchmark::State& state) { Page(state, size, text, paint); })
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
