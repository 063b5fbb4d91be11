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

/** Of the rectangles: x and y of the first corner, then of the one opposite. */
QVector<double> Corners(const Lw::HNodeAnimationText::Outline& path)
{
    const std::size_t elementsEach = 5; // around and back to the first corner
    QVector<double> corners;
    for (std::size_t i = 0; i + elementsEach <= path.Size(); i += elementsEach)
        for (const std::size_t element : {i, i + 2})
            corners << double(path.At(element).x) << double(path.At(element).y);
    return corners;
}

/** What a tick did, by its letter in Script::letters. A plus: another layer was shown, too. */
QString Word(QChar letter)
{
    static const QMap<QChar, QString> words{
        {'D', "frame"},        {'H', "hold"},   {'d', "unseen frame"}, {'h', "unseen hold"},
        {'-', "idle"},         {'X', "frame+"}, {'Y', "hold+"},        {'x', "unseen frame+"},
        {'y', "unseen hold+"}, {'.', "idle+"}};
    return words.value(letter);
}

/** "D-D-D-DD" as "(frame, idle) x3, frame x2". */
QString Words(const QString& letters)
{
    QStringList parts;
    for (int at = 0; at < letters.size();) {
        int best = 1, times = 1;
        for (int length = 1; length <= 14; ++length) {
            int same = 1;
            while (letters.mid(at, length) == letters.mid(at + same * length, length))
                ++same;
            if (same > 1 && same * length > best * times)
                best = length, times = same;
        }
        const QString group =
            best == 1 ? Word(letters[at]) : '(' + Words(letters.mid(at, best)) + ')';
        parts.append(times == 1 ? group : group + " x" + QString::number(times));
        at += best * times;
    }
    return parts.join(", ");
}

} // namespace

Script::Script(const QString& line)
{
    Torv::ResetAccounts();
    // As most texts are once they have started.
    counters["state"].value = 1;
    counters["timer"].value = tickInterval;
    for (const char* name : {"page", "held page", "drawing"})
        counters[name].value = 1;
    counters["neon layer"].value = -1;
    told = {{"pages", "0,2,3 at 0,50,90"}, {"behind", "clear"}};
    for (const QString& word : line.split(' ', Qt::SkipEmptyParts))
        Do(word);
    Flush();
    const Torv::Accounting before = Torv::Accounts();
    play.render.reset();
    if (before.Misuses() > 0)
        lines.append({-1, 0, "misuses " + QString::number(before.Misuses())});
    if (Torv::Accounts().liveSessions > 0)
        lines.append({-1, 0, "sessions are left"});
    if (root)
        play.text.node.release(); // the tree's
}

QStringList Script::Lines() const
{
    QStringList text;
    for (int i = 0; i < lines.size();) {
        // The most lines from here on that repeat earlier ones.
        int earlier = 0, most = 1;
        for (int from = i - 1; from >= 0 && lines[from].tick >= 0; --from) {
            const int apart = lines[i].tick - lines[from].tick;
            int same = 0;
            while (i + same < lines.size() && lines[i + same].tick >= 0 &&
                   lines[i + same].tick - lines[from + same].tick == apart &&
                   lines[i + same].what == lines[from + same].what)
                ++same;
            if (same > most)
                most = same, earlier = apart;
        }
        const Line &first = lines[i], &last = lines[i + most - 1];
        if (earlier > 0)
            text.append(QString("ticks %1 to %2: as %3 earlier")
                            .arg(first.tick)
                            .arg(last.tick + last.ticks - 1)
                            .arg(earlier));
        else
            text.append((first.tick < 0 ? "" : QString("tick %1: ").arg(first.tick)) + first.what);
        i += most;
    }
    return text;
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
    else if (key[0].isUpper()) {
        node->SetAttribute(key, number);
        scrolls = key == "EffectType" ? number == 1 : scrolls;
    } else if (key == "metrics")
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
    else if (key == "corners") {
        cornersEach = number;
        box = glyphs = Places();
    } else if (key == "speeds")
        for (const QString& speed : text.split(','))
            Set(scrolls ? "ContinueSpeed" : "AnimationSpeed", speed), Operate("told");
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
    WriteGlyphData(play.text.File("descents"), Serialized(descents));
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
            words.append(Joined(cut.pageBreaks()) + " at " + Joined(cut.pageOffsets()));
            cut.pageBreaks().clear();
            cut.pageOffsets().clear();
            node.SelectPath(0);
        }
        const QString pages = "pages " + words.join(" and ");
        if (told.value("cut") != pages)
            lines.append({-1, 0, pages + ", lasts"});
        else if (lines.isEmpty() || !lines.last().what.contains("lasts"))
            lines.append({-1, 0, "lasts"});
        lines.last().what += ' ' + QString::number(duration);
        told["cut"] = pages;
        return;
    }
    if (!told.contains("picture")) {
        const QSize area = play.text.node->Size();
        told["picture"] = QString("%1x%2").arg(area.width()).arg(area.height());
        told["calls"] = "calls create(" + told["picture"] + ") add get0 swap0 blend0=0";
        counters["characters left"].value = widths.size();
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
    if (word == "start") {
        tick = 0;
        for (const char* name : {"character", "offset", "offset2", "progress"})
            counters[name] = {};
    }
    operation = word;
    Note(true);
}

void Script::Tick()
{
    PassTicks(1);
    ++tick;
    Note(false);
}

void Script::Expect(const QString& name, double now, double expected)
{
    if (std::abs(now - expected) > 0.001)
        changes.append(name + ' ' + QString::number(qRound64(now * 100) / 100.0));
    counters[name].value = now;
}

void Script::Expect(const QString& yes, bool now, bool expected)
{
    if (now != expected)
        changes.append(now ? yes : "not " + yes);
    counters[yes].value = now;
}

void Script::Flow(const QString& name, double now, bool flows)
{
    Counter& counter = counters[name];
    const double moved = now - counter.value;
    Expect(name, now, counter.value + (flows ? counter.step : 0));
    if (!flows)
        return;
    // What goes back begins again and then goes on as before. Characters go on by themselves only
    // in scrolling and where they appear word by word.
    if (moved * counter.step >= 0 && (name != "character" || moved == counter.moved))
        counter.step = moved;
    counter.moved = moved;
}

void Script::Follow(const QString& name, Places& places, const QVector<double>& now,
                    const QSize& inside)
{
    const QVector<double> before = places.at;
    bool asExpected = now.size() == before.size();
    for (int i = 0; asExpected && i < now.size(); ++i) {
        double expected = before[i] + places.steps.value(i);
        if (inside.isValid())
            expected = qBound(0.0, expected, (i % 2 ? inside.height() : inside.width()) - 1.0);
        asExpected = std::abs(now[i] - expected) < 0.002;
    }
    if (asExpected) {
        places.at = now;
        return;
    }
    QStringList corners;
    for (int i = 0; i + 1 < now.size(); i += 2)
        corners.append(QString::number(qRound64(now[i] * 100) / 100.0 + 0.0, 'g', 8) + ',' +
                       QString::number(qRound64(now[i + 1] * 100) / 100.0 + 0.0, 'g', 8) +
                       (i % 4 && i + 2 < now.size() ? " |" : ""));
    changes.append(now.isEmpty() ? "no " + name : name + ' ' + corners.join(' '));
    places.at = now;
    places.steps.resize(now.size());
    for (int i = 0; i < now.size(); ++i) {
        const double moved = i < before.size() ? now[i] - before[i] : places.steps[i % 2];
        if (i >= before.size() || moved * places.steps[i] >= 0)
            places.steps[i] = moved;
    }
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
        counters["frames"] = {0, 1, 1};
    }
    const bool visited = engine.frameCount() != frames;
    const qint64 shown = session && engine.pictureSession() ? Torv::SwapCount(session, layer) : 0;
    const bool held = counters["drawing"].value == 0 && !first;
    const bool drawn = visited && !held;
    frames = engine.frameCount();
    QString letter = shown != swaps && shown > 0 ? (held ? "H" : "D")
                     : visited                   ? (held ? "h" : "d")
                                                 : "-";
    swaps = shown;

    const auto value = [this](const char* name) { return counters[name].value; };
    const auto tell = [this](const QString& name, const QString& text) {
        if (told.value(name) != text)
            changes.append(name + ' ' + text);
        told[name] = text;
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
    const QString called = "calls " + calls.join(' ');
    if (!calls.isEmpty() && !(first && told.value("calls") == called))
        changes.append(called);
    if (first)
        told["calls"] = called;
    if (!Messages::Taken().isEmpty())
        changes.append("warnings " + QString::number(Messages::Taken().size()));
    Messages::Taken().clear();

    Expect("state", play.render->renderState(), value("state"));
    Expect("timer", probe.drawTimer().isActive() ? probe.drawTimer().interval() : 0,
           value("timer"));
    const double pageBefore = value("page");
    Expect("page", engine.pageIndex(), pageBefore);
    Expect("held page", engine.stayPageIndex(),
           engine.pageIndex() == pageBefore ? value("held page") : pageBefore);
    Expect("drawing", engine.isDrawing(), value("drawing") != 0);
    const bool wasEnded = value("ended") != 0 && !drawn;
    Expect("ended", engine.runEnded(), wasEnded);
    Expect("run", engine.playCount(), value("run") + (engine.runEnded() && !wasEnded));
    Expect("finished", engine.playFinished(), value("finished") != 0);
    Flow("frames", engine.frameCount(), visited);
    Expect("step", double(engine.stepSize()), value("step"));
    Flow("character", engine.charIndex(), drawn);
    Expect("characters left", engine.charCount(), value("characters left"));
    Flow("offset", engine.moveOffset(), drawn);
    Flow("offset2", engine.moveOffset2(), drawn);
    Flow("progress", double(engine.progressF()), drawn);
    Expect("text layer", engine.pictureSession() ? layer : -1, value("text layer"));
    Expect("neon layer", engine.neonBg()->pictureSession ? engine.neonBg()->layer : -1,
           value("neon layer"));
    Expect("dazzle layer", engine.dazzleLayer(), value("dazzle layer"));
    Expect("dazzling", engine.dazzleTimer().isActive(), value("dazzling") != 0);
    Expect("color", engine.dazzleColorIndex(), value("color"));
    tell("pages", Joined(engine.pageBreaks()) + " at " + Joined(engine.pageOffsets()));
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
        const QRect painted = PaintedBox(seen);
        QVector<double> edges;
        if (!painted.isNull())
            edges = {double(painted.left()), double(painted.top()), double(painted.right()),
                     double(painted.bottom())};
        Follow("box", box, edges, seen.size());
        Follow("glyphs", glyphs, Corners(engine.textPath().Path()), QSize());
    }
    if (!changes.isEmpty())
        Flush();
    if (letters.isEmpty())
        begin = tick;
    letters += letter;
    fields += changes;
    changes.clear();
}

void Script::Flush()
{
    if (letters.isEmpty())
        return;
    const QString what = (QStringList(Words(letters)) + fields).join(", ");
    const QString at = operation == "start" ? "" : QString(" at tick %1").arg(begin);
    if (operation.isEmpty())
        lines.append({begin, int(letters.size()), what});
    else
        lines.append({-1, 0, operation + at + ": " + what});
    operation.clear();
    letters.clear();
    fields.clear();
}
