#include "script.h"

#if QT_VERSION >= 0x060000
#include <qrand.h>
#endif

namespace {

QVector<int> Numbers(const QString& text, QRegularExpression apart = QRegularExpression("[,x:]"))
{
    QVector<int> numbers;
    for (const QString& number : text.split(apart, Qt::SkipEmptyParts))
        numbers.append(number.toInt());
    return numbers;
}

template <typename List>
QString Joined(const List& numbers)
{
    QStringList words;
    for (int number : numbers)
        words.append(QString::number(number));
    return words.join(',');
}

/** "D-D-D-" as "(D-)3". */
QString Shortened(const QString& letters)
{
    QString text;
    for (int at = 0; at < letters.size();) {
        int best = 1, times = 1;
        for (int length = 1; length <= 14; ++length) {
            int same = 1;
            while (letters.mid(at, length) == letters.mid(at + same * length, length))
                ++same;
            if (same > 1 && same * length > best * times)
                best = length, times = same;
        }
        const QString group = letters.mid(at, best);
        text += times == 1  ? group
                : best == 1 ? group + QString::number(times)
                            : '(' + group + ')' + QString::number(times);
        at += best * times;
    }
    return text;
}

} // namespace

Script::Script(const QString& line)
{
    Torv::ResetAccounts();
    // As most texts are once they have started.
    value = {{"state", 1},   {"ticking", tickInterval},
             {"page", 1},    {"held", 1},
             {"drawing", 1}, {"frames", 1},
             {"left", 3},    {"neon", -1}};
    told = {{"pages", "0,2,3|0,50,90"}, {"picture", "60x41"}, {"behind", "clear"}, {"at", "[]"}};
    for (const QString& word : line.split(' ', Qt::SkipEmptyParts))
        Do(word);
    Flush();
    const Torv::Accounting before = Torv::Accounts();
    play.render.reset();
    if (before.Misuses() > 0)
        lines.append("misuses " + QString::number(before.Misuses()));
    if (Torv::Accounts().liveSessions > 0)
        lines.append("sessions are left");
    if (root)
        play.text.node.release(); // the tree's
}

void Script::Do(const QString& word)
{
    const int equals = word.indexOf('=');
    if (equals > 0)
        Set(word.left(equals), word.mid(equals + 1));
    else
        Operate(word);
}

void Script::Set(const QString& key, const QString& text)
{
    HAnimationTextNode* const node = play.text.node.get();
    const QVector<int> numbers = Numbers(text);
    const int number = numbers.value(0);
    const QMap<QString, QVector<int>*> lists{
        {"widths", &widths}, {"heights", &heights}, {"descents", &descents}};
    if (key == "Text")
        node->SetAttribute(key, text == "blank" ? QString(" \t ") : text);
    else if (key[0].isUpper())
        node->SetAttribute(key, number);
    else if (key == "metrics")
        widths = heights = descents = numbers;
    else if (lists.contains(key))
        *lists[key] = numbers;
    else if (key == "outlines")
        outlines = number;
    else if (key == "shift")
        shift = number;
    else if (key == "area")
        node->SetSize(QSize(number, numbers.value(1)));
    else if (key == "pos")
        node->SetPos(QPoint(number, numbers.value(1)));
    else if (key == "hold")
        node->SetHoldTime(number);
    else if (key == "blend")
        HPluginManager::instance()->SetAlphaBlend(number != 0);
    else if (key == "seed")
        seed = number;
    else if (key == "tree")
        PlantTree(numbers);
    else if (key == "fail")
        Fail(text.section(':', 0, 0), text.section(':', 1).toInt());
    else if (key == "corners")
        cornersEach = number;
    else if (key == "runs")
        for (int i = 0; i < 5000 && play.Probe().Engine().playCount() < number; ++i)
            Tick();
    else
        qFatal("unknown: %s", qPrintable(key));
    const bool rewrites = lists.contains(key) || key == "metrics";
    if (rewrites || key == "outlines" || key == "shift")
        WriteText();
    if (key == "widths" || key == "metrics")
        node->SetAttribute("Text", Letters(widths.size()));
}

void Script::WriteText()
{
    QVector<QPainterPath> glyphs = RectangleGlyphs(widths, heights);
    while (!glyphs.isEmpty() && glyphs.size() < outlines)
        glyphs.append(glyphs.first());
    if (outlines >= 0)
        glyphs.resize(outlines);
    for (QPainterPath& glyph : glyphs)
        glyph.translate(shift, 0);
    play.text.SetGlyphs(glyphs);
    WriteGlyphData(play.text.File("descents"), Serialised(descents));
    SetList(*play.text.node, "TextWidth", "text_width", widths);
    SetList(*play.text.node, "TextHeight", "text_height", heights);
}

void Script::PlantTree(const QVector<int>& numbers)
{
    // From the node up: area, page and program, as many as there are.
    QVector<Lw::HNode*> line{play.text.node.get()};
    for (int i = 0; i < numbers.at(0); ++i) {
        line.append(new Lw::HNode);
        line[i + 1]->AddChild(line[i]);
        for (int k = 1; k < numbers.value(i == 0 ? 1 : i == 2 ? 2 : 9, 1); ++k)
            line[i + 1]->AddChild(new Lw::HNode);
    }
    if (numbers.at(3)) {
        HAnimationTextNode* const still = new HAnimationTextNode;
        still->SetAttribute("EffectType", 2);
        line[2]->AddChild(new Lw::HNode);
        line[2]->ChildNodes().last()->AddChild(still);
    }
    root.reset(line.last());
}

void Script::Fail(const QString& call, int nth)
{
    const char* const words[] = {"create", "add",    "append", "get",     "swap",
                                 "blend",  "remove", "free",   "duration"};
    for (int i = 0; i < Torv::OperationCount; ++i)
        if (call == words[i]) {
            if (nth > 0)
                Torv::FailCall(Torv::Operation(i), nth);
            else
                Torv::FailAllCalls(Torv::Operation(i), true);
        }
}

void Script::Operate(const QString& word)
{
    bool isNumber = false;
    const int ticks = word.toInt(&isNumber);
    if (isNumber) {
        for (int i = 0; i < ticks; ++i)
            Tick();
        return;
    }
    Flush();
    if (word == "told") {
        // And how the node cuts its text, from its start and from its end.
        HAnimationTextNode& node = *play.text.node;
        Lw::HNodeAnimationText::NodeProbe cut(node);
        const int duration = node.Duration();
        QStringList words;
        for (int i = 0; i < 2; ++i) {
            words.append(Joined(cut.pageBreaks()) + '|' + Joined(cut.pageOffsets()));
            cut.pageBreaks().clear();
            cut.pageOffsets().clear();
            node.SelectPath(0);
        }
        const bool cutAnew = told.value("cut") != words.join(' ');
        told["cut"] = words.join(' ');
        lines.append("told " + QString::number(duration) + (cutAnew ? ' ' + told["cut"] : ""));
        return;
    }
    qsrand(uint(seed));
    if (word == "start")
        play.render->Start(play.display.Handle());
    else if (word == "nowhere")
        play.render->Start(0);
    else if (word == "pause")
        play.render->Pause();
    else if (word == "stop")
        play.render->Stop();
    else if (word == "remove")
        play.render->Remove();
    else if (word == "next")
        play.render->PlayNext();
    else if (word == "gone")
        play.text.node.reset();
    else if (word == "reflect")
        reflects = true;
    else
        qFatal("unknown: %s", qPrintable(word));
    lines.append(word);
    if (word == "start")
        tick = 0;
    Note(true);
}

void Script::Tick()
{
    PassTicks(1);
    ++tick;
    Note(false);
}

void Script::Note(bool first)
{
    const RenderProbe probe = play.Probe();
    const EngineProbe engine = probe.Engine();
    if (reflects)
        probe.EngineItself().EffectUpwardZoomWithReflection();

    // Was a frame drawn or a hold visited, and shown?
    const PicSession session = probe.session();
    const int layer = engine.sessionLayer();
    if (first) {
        frames = 0;
        swaps = 0;
        value["frames"] = 0;
        change["frames"] = 1;
    }
    const bool visited = engine.frameCount() != frames;
    const qint64 shown = session && engine.pictureSession() ? Torv::SwapCount(session, layer) : 0;
    const bool held = value.value("drawing") == 0 && !first;
    frames = engine.frameCount();
    QString letter = shown != swaps && shown > 0 ? (held ? "H" : "D")
                     : visited                   ? (held ? "h" : "d")
                                                 : "-";
    swaps = shown;

    QStringList changes;
    const auto tell = [&](const QString& name, const QString& text) {
        if (told.value(name) != text)
            changes.append(name + '=' + text);
        told[name] = text;
    };
    const auto count = [&](const QString& name, double now, bool flows = false) {
        const double before = value.value(name);
        const bool moves = flows && visited && (!held || name == "frames");
        const double expected = before + (moves ? change.value(name) : 0);
        if (std::abs(now - expected) > 0.001)
            changes.append(name + '=' + QString::number(qRound64(now * 100) / 100.0));
        if (moves)
            change[name] = now - before;
        value[name] = now;
    };

    static const QMap<QString, QString> others{
        {"D", "X"}, {"H", "Y"}, {"d", "x"}, {"h", "y"}, {"-", "."}};
    QStringList calls;
    for (const QString& line : play.log) {
        const QString call = ShortCall(line);
        const bool ofText = call == "swap" + QString::number(layer);
        const bool swap = call.startsWith("swap") && !call.contains('!');
        if (swap && !ofText && !first)
            letter = others.value(letter, letter);
        else if (first || !(swap || QRegularExpression("^get\\d$").match(call).hasMatch()))
            calls.append(call);
    }
    play.log.clear();
    const QString called = "calls: " + calls.join(' ') + ';';
    if (!calls.isEmpty() && !(first && told.value("calls") == called))
        changes.append(called);
    if (first)
        told["calls"] = called;
    if (!Messages::Taken().isEmpty())
        changes.append("says=" + QString::number(Messages::Taken().size()));
    Messages::Taken().clear();

    count("state", play.render->renderState());
    count("ticking", probe.drawTimer().isActive() ? probe.drawTimer().interval() : 0);
    count("page", engine.pageIndex());
    count("held", engine.stayPageIndex());
    count("drawing", engine.isDrawing());
    count("run", engine.playCount());
    count("ended", engine.runEnded());
    count("finished", engine.playFinished());
    count("frames", engine.frameCount(), true);
    count("step", engine.stepSize());
    count("char", engine.charIndex(), true);
    count("left", engine.charCount());
    count("move", engine.moveOffset(), true);
    count("move2", engine.moveOffset2(), true);
    count("progress", double(engine.progressF()), true);
    count("text", engine.pictureSession() ? layer : -1);
    count("neon", engine.neonBg()->pictureSession ? engine.neonBg()->layer : -1);
    count("dazzle", engine.dazzleLayer());
    count("dazzling", engine.dazzleTimer().isActive());
    count("colour", engine.dazzleColorIndex());
    tell("pages", Joined(engine.pageBreaks()) + '|' + Joined(engine.pageOffsets()));
    const QImage& picture = engine.drawImage();
    tell("picture", QString("%1x%2%3")
                        .arg(picture.width())
                        .arg(picture.height())
                        .arg(picture.depth() == 24 ? "rgb" : ""));
    tell("behind", engine.stayImage().isNull()               ? "none"
                   : PaintedBox(engine.stayImage()).isNull() ? "clear"
                                                             : "painted");
    if (cornersEach > 0 && tick % cornersEach == 0) {
        const QImage seen = engine.pictureSession() ? Torv::FrontImage(session, layer) : picture;
        const QRect box = PaintedBox(seen);
        tell("box", box.isNull() ? ""
                                 : QString("%1,%2,%3,%4")
                                       .arg(box.left())
                                       .arg(box.top())
                                       .arg(box.right())
                                       .arg(box.bottom()));
        tell("at", '[' + Corners(engine) + ']');
    }
    if (!changes.isEmpty()) {
        Flush();
        head = QString::number(tick);
        fields = changes.join(' ');
    }
    letters += letter;
}

void Script::Flush()
{
    if (!letters.isEmpty())
        lines.append((head + ' ' + Shortened(letters) + ' ' + fields).trimmed());
    letters.clear();
    fields.clear();
    head = QString::number(tick + 1);
}
