#include "studio/model/sign.h"

#include "files/wholefile.h"
#include "layout/glyphfiles.h"
#include "scene/attributes.h"
#include "scene/fonts.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <tuple>

namespace AnimText::studio::model {
namespace {

const QString pathData = "PathData";
const QString descentVector = "DescentVector";
const QStringList dataKeys{pathData, descentVector};
const QString textKey = "Text";

int NewTextId()
{
    static int last = 0;
    return ++last;
}

/** The layout that is stored in the scene. */
std::shared_ptr<const Layout> LayoutIn(const scene::Scene& scene, const scene::SceneNode& node,
                                       const QByteArray& key)
{
    auto layout = std::make_shared<Layout>();
    layout->key = key;
    layout->text = node.attributes.value(textKey).toString();
    layout->lists = node.lists;
    for (const QString& key : dataKeys) {
        if (!node.files.contains(key))
            continue;
        QFile file(scene.FullName(node.files.value(key)));
        layout->files[key] = file.fileName();
        // Read now, because the file may be removed later.
        if (file.open(QIODevice::ReadOnly))
            layout->data[key] = file.readAll();
    }
    return layout;
}

scene::SceneNode WithoutLayout(scene::SceneNode node, const scene::Scene& scene)
{
    node.attributes.remove(textKey);
    node.lists.clear();
    for (const QString& key : dataKeys)
        node.files.remove(key);
    for (QString& file : node.files)
        file = scene.FullName(file);
    return node;
}

scene::SceneNode NodeOf(const SignText& text, const PlaceFile& placeFile)
{
    scene::SceneNode node = text.node;
    if (!text.layout)
        return node;
    const Layout& layout = *text.layout;
    node.attributes[textKey] = layout.text;
    node.lists = layout.lists;
    for (const QString& key : dataKeys) {
        if (!layout.data.value(key).isEmpty())
            node.files[key] = placeFile(layout, key);
        else if (layout.files.contains(key))
            node.files[key] = layout.files.value(key);
    }
    return node;
}

} // namespace

bool operator==(const SignText& a, const SignText& b)
{
    const auto settings = [](const SignText& text) {
        const scene::SceneNode& node = text.node;
        return std::tie(text.id, text.source, node.pos, node.size, node.hold, node.neonEffect,
                        node.attributes, node.files);
    };
    return settings(a) == settings(b);
}

int Sign::IndexOf(int id) const
{
    const auto found = std::find_if(texts.begin(), texts.end(),
                                    [id](const SignText& text) { return text.id == id; });
    return found == texts.end() ? -1 : int(found - texts.begin());
}

SignText* Sign::Find(int id)
{
    const int index = IndexOf(id);
    return index < 0 ? nullptr : &texts[index];
}

const SignText* Sign::Find(int id) const
{
    const int index = IndexOf(id);
    return index < 0 ? nullptr : &texts.at(index);
}

int Sign::PageCount() const
{
    return texts.isEmpty() ? 0 : texts.last().page + 1;
}

bool Sign::IsLaidOut() const
{
    return std::all_of(texts.begin(), texts.end(),
                       [](const SignText& text) { return text.IsLaidOut(); });
}

SignText NewText(const QSize& area, int page)
{
    SignText text;
    text.id = NewTextId();
    text.page = page;
    text.node.size = area;
    text.node.hold = 20;
    const scene::NodeMotion motion{scene::Mode::Entrance, 17};
    scene::SetMotion(&text.node, motion);
    text.node.attributes[motion.SpeedKey()] = 6;
    text.node.attributes["PlayTimes"] = 1;
    QString family;
    QString error;
    scene::FindFamily(QLatin1String(scene::usualFamily), &family, &error);
    QFont font(family);
    font.setPixelSize(qMax(8, area.height() * 5 / 8));
    text.source.text.text = QCoreApplication::translate("Sign", "Your text");
    text.source.text.runs = {{0, font, QColor(255, 160, 0)}};
    text.layoutKey = LayoutKey(text);
    return text;
}

namespace {

constexpr int aloneInArea = -1; // instead of an area number

/** Sorts the texts by the numbers of their pages, and then numbers pages and areas from 0. */
void Arrange(QList<SignText>* texts)
{
    std::stable_sort(texts->begin(), texts->end(),
                     [](const SignText& a, const SignText& b) { return a.page < b.page; });
    QPair<int, int> before{-1, aloneInArea}; // page and area as they were
    int page = -1;
    int area = 0;
    for (SignText& text : *texts) {
        const QPair<int, int> own{text.page, text.area};
        if (own.first != before.first) {
            ++page;
            area = 0;
        } else if (own.second == aloneInArea || own.second != before.second) {
            ++area;
        }
        before = own;
        text.page = page;
        text.area = area;
    }
}

QPoint FreePlace(const Sign& sign, const SignText& text)
{
    const QRect old(text.node.pos, text.node.size);
    const QRect display(QPoint(0, 0), sign.display);
    for (const QPoint& by : {QPoint(old.width(), 0), QPoint(0, old.height()),
                             QPoint(-old.width(), 0), QPoint(0, -old.height())}) {
        const QRect next = old.translated(by);
        const bool isFree =
            std::none_of(sign.texts.begin(), sign.texts.end(), [&](const SignText& other) {
                return other.page == text.page &&
                       next.intersects(QRect(other.node.pos, other.node.size));
            });
        if (isFree && display.contains(next))
            return next.topLeft();
    }
    return old.topLeft() + QPoint(8, 8); // offset, so that both are visible
}

} // namespace

void AddText(Sign* sign, const SignText& text)
{
    sign->texts.append(text);
    sign->texts.last().area = aloneInArea;
    Arrange(&sign->texts);
}

void RemoveText(Sign* sign, int id)
{
    const int index = sign->IndexOf(id);
    if (index < 0)
        return;
    sign->texts.removeAt(index);
    Arrange(&sign->texts);
}

void MoveText(Sign* sign, int id, int page, int place)
{
    const int from = sign->IndexOf(id);
    if (from < 0)
        return;
    QList<SignText>& texts = sign->texts;
    const auto isBefore = [](const SignText& text, int page) { return text.page < page; };
    const auto first = std::lower_bound(texts.begin(), texts.end(), page, isBefore);
    const auto end = std::lower_bound(first, texts.end(), page + 1, isBefore);
    const int to = int(first - texts.begin()) + qBound(0, place, int(end - first));
    texts[from].page = page;
    texts[from].area = aloneInArea;
    texts.move(from, to > from ? to - 1 : to);
    Arrange(&texts);
}

void MovePage(Sign* sign, int page, int to)
{
    for (SignText& text : sign->texts)
        text.page = text.page == page ? 2 * to : 2 * text.page + 1; // before what is there
    Arrange(&sign->texts);
}

void RemovePage(Sign* sign, int page)
{
    const auto isOnIt = [page](const SignText& text) { return text.page == page; };
    QList<SignText>& texts = sign->texts;
    texts.erase(std::remove_if(texts.begin(), texts.end(), isOnIt), texts.end());
    Arrange(&texts);
}

void DuplicatePage(Sign* sign, int page)
{
    QList<SignText> copies;
    for (SignText& text : sign->texts) {
        text.page *= 2;
        if (text.page != 2 * page)
            continue;
        copies.append(text);
        copies.last().id = NewTextId();
        ++copies.last().page;
    }
    sign->texts.append(copies);
    Arrange(&sign->texts);
}

int DuplicateText(Sign* sign, int id)
{
    const int index = sign->IndexOf(id);
    if (index < 0)
        return 0;
    SignText copy = sign->texts.at(index);
    copy.node.pos = FreePlace(*sign, copy);
    copy.id = NewTextId();
    copy.area = aloneInArea;
    sign->texts.insert(index + 1, copy);
    Arrange(&sign->texts);
    return copy.id;
}

void ResizeDisplay(Sign* sign, const QSize& display)
{
    for (SignText& text : sign->texts) {
        if (text.node.pos.isNull() && text.node.size == sign->display)
            text.node.size = display;
    }
    sign->display = display;
}

QByteArray LayoutKey(const SignText& text)
{
    const scene::SceneNode& node = text.node;
    const scene::NodeMotion motion = scene::MotionOf(node);
    const QString setting = QStringLiteral("%1 %2 %3 %4")
                                .arg(motion.IsScroll() ? 1 : 0)
                                .arg(motion.number)
                                .arg(node.size.width())
                                .arg(node.size.height());
    author::TextSource source = text.source;
    source.name.clear(); // does not affect the layout
    return QCryptographicHash::hash(author::SourcesToJson({{setting.toLatin1(), source}}),
                                    QCryptographicHash::Sha1);
}

std::shared_ptr<const Layout> MakeLayout(const SignText& text)
{
    author::TextSource source = text.source;
    auto layout = std::make_shared<Layout>();
    layout->key = text.layoutKey;
    if (source.text.text.trimmed().isEmpty()) {
        layout->data = {{pathData, layout::PathFile({})}, {descentVector, layout::DescentFile({})}};
        for (const QString& list : scene::ListKeys())
            layout->lists[list] = {};
        return layout;
    }
    scene::NodeMotion motion = scene::MotionOf(text.node);
    if (motion.mode == scene::Mode::Still)
        motion.mode = scene::Mode::Entrance;
    if (layout::ToOneLine(&source.text, &layout->notes, &layout->fault))
        layout::LayOut(source.text, source, motion, text.node.size, layout.get(), &layout->fault);
    return layout;
}

bool ReadSign(const QString& path, Sign* sign, QString* error)
{
    scene::Scene scene;
    if (!scene::ReadScene(path, &scene, error, scene::MissingFiles::AreAccepted))
        return false;
    const author::TextSources sources = author::ReadSources(path);
    *sign = {scene.display, scene.alphaBlend, {}};
    for (const scene::Place& place : scene.Places()) {
        const scene::SceneNode& node = scene.At(place);
        SignText text;
        text.id = NewTextId();
        text.page = place.page;
        text.area = place.area;
        const auto known = sources.find(author::LayoutDigest(node));
        text.source = known != sources.end() ? known.value() : author::SourceOf(node);
        text.node = WithoutLayout(node, scene);
        text.layoutKey = LayoutKey(text);
        text.layout = LayoutIn(scene, node, text.layoutKey);
        sign->texts.append(text);
    }
    return true;
}

scene::Scene SceneOf(const Sign& sign, const QString& path, const PlaceFile& placeFile, int page)
{
    scene::Scene scene;
    scene.path = path;
    scene.display = sign.display;
    scene.alphaBlend = sign.alphaBlend;
    const SignText* before = nullptr;
    for (const SignText& text : sign.texts) {
        if (page >= 0 && text.page != page)
            continue;
        const bool beginsPage = !before || text.page != before->page;
        if (beginsPage)
            scene.pages.append(scene::ScenePage());
        QList<scene::SceneArea>& areas = scene.pages.last().areas;
        if (beginsPage || text.area != before->area)
            areas.append(scene::SceneArea());
        areas.last().nodes.append(NodeOf(text, placeFile));
        before = &text;
    }
    return scene;
}

scene::Scene SceneToSave(const Sign& sign, const QString& path, author::DataFiles* dataFiles,
                         author::TextSources sources)
{
    const QDir folder = QFileInfo(files::RealPath(path)).dir();
    const auto place = [&](const Layout& layout, const QString& key) {
        const QByteArray content = layout.data.value(key);
        const QFileInfo there(layout.files.value(key));
        if (layout.files.contains(key) && there.dir() == folder && there.exists())
            return there.fileName();
        const QString name = author::DataFileName(files::RealPath(path), key, content);
        dataFiles->insert(name, content);
        return name;
    };
    scene::Scene scene = SceneOf(sign, path, place);
    const QList<scene::SceneNode*> nodes = scene.Nodes();
    for (int i = 0; i < nodes.size(); ++i) {
        for (QString& file : nodes.at(i)->files) {
            const QString near = folder.relativeFilePath(file);
            if (!near.startsWith(QLatin1String("..")))
                file = near;
        }
        sources.insert(author::LayoutDigest(*nodes.at(i)), sign.texts.at(i).source);
    }
    dataFiles->insert(author::SourcesName(path), author::SourcesToJson(sources));
    return scene;
}

} // namespace AnimText::studio::model
