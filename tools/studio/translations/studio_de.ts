<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AnimText::studio::model::Document</name>
    <message>
        <source>%1 has changed on disk</source>
        <translation>%1 wurde auf dem Datenträger geändert</translation>
    </message>
    <message>
        <source>Load from disk</source>
        <translation>Vom Datenträger laden</translation>
    </message>
    <message>
        <source>New scene</source>
        <translation>Neue Szene</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::basics::NoticeBar</name>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::display::DisplayForm</name>
    <message>
        <source>Alpha blending</source>
        <translation>Alpha-Überblendung</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>On: pictures have 32 bits per pixel, with transparency. Off: 24 bits per pixel; black shows the layer below.</source>
        <translation>An: Bilder haben 32 Bit pro Pixel mit Transparenz. Aus: 24 Bit pro Pixel; Schwarz zeigt die Ebene darunter.</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::display::DisplayView</name>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>What the sign shows at the current tick</source>
        <translation>Was das Schild im aktuellen Takt zeigt</translation>
    </message>
    <message>
        <source>x %1  y %2  ·  %3 × %4 px</source>
        <translation>x %1  y %2  ·  %3 × %4 px</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::display::LedsDialog</name>
    <message>
        <source>Serpentine</source>
        <translation>Schlangenlinie</translation>
    </message>
    <message>
        <source>Show test pattern</source>
        <translation>Testbild zeigen</translation>
    </message>
    <message>
        <source>Play on LEDs</source>
        <translation>Auf LEDs abspielen</translation>
    </message>
    <message>
        <source>Name or address, such as wall.local</source>
        <translation>Name oder Adresse, etwa wand.local</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Controller&apos;s name or address</source>
        <translation>Name oder Adresse des Controllers</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>Controller</translation>
    </message>
    <message>
        <source>Part of the display</source>
        <translation>Teil der Anzeige</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>First LED</source>
        <translation>Erste LED</translation>
    </message>
    <message>
        <source>Color order</source>
        <translation>Farbreihenfolge</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>First universe</source>
        <translation>Erstes Universum</translation>
    </message>
    <message>
        <source>As a command</source>
        <translation>Als Befehl</translation>
    </message>
    <message>
        <source>DDP has no universes</source>
        <translation>DDP hat keine Universen</translation>
    </message>
    <message>
        <source>sign.json</source>
        <translation>schild.json</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Enter the controller&apos;s name or address.</source>
        <translation>Geben Sie den Namen oder die Adresse des Controllers ein.</translation>
    </message>
    <message>
        <source>The LEDs show what the studio shows.</source>
        <translation>Die LEDs zeigen, was das Studio zeigt.</translation>
    </message>
    <message>
        <source>Every other row or column runs in the opposite direction</source>
        <translation>Jede zweite Zeile oder Spalte verläuft in Gegenrichtung</translation>
    </message>
    <message>
        <source>Shows corners, LED order, colors, and brightness levels for five seconds each</source>
        <translation>Zeigt Ecken, LED-Reihenfolge, Farben und Helligkeitsstufen je fünf Sekunden lang</translation>
    </message>
    <message>
        <source>LEDs run along</source>
        <translation>LEDs verlaufen in</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Path of the data line, seen from the front</source>
        <translation>Verlauf der Datenleitung, von vorn gesehen</translation>
    </message>
    <message>
        <source>No controller given: sends to the E1.31 multicast groups.</source>
        <translation>Kein Controller angegeben: sendet an die E1.31-Multicast-Gruppen.</translation>
    </message>
    <message>
        <source>Looking up %1…</source>
        <translation>%1 wird gesucht …</translation>
    </message>
    <message>
        <source>%1 was not found: %2</source>
        <translation>%1 wurde nicht gefunden: %2</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::findings::FindingsList</name>
    <message>
        <source>Play once</source>
        <translation>Einmal abspielen</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Nach links laufen</translation>
    </message>
    <message>
        <source>Move onto the display</source>
        <translation>In Anzeige verschieben</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message numerus="yes">
        <source>And %n more</source>
        <translation>
            <numerusform>Und %n weiteres</numerusform>
            <numerusform>Und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Found %1, expected %2.
%3</source>
        <translation>Gefunden %1, erwartet %2.
%3</translation>
    </message>
    <message>
        <source>No problems found</source>
        <translation>Keine Probleme gefunden</translation>
    </message>
    <message>
        <source>Use the nearest speed</source>
        <translation>Tempo anpassen</translation>
    </message>
    <message>
        <source>Remove the hold</source>
        <translation>Haltezeit entfernen</translation>
    </message>
    <message>
        <source>Use an entrance effect</source>
        <translation>Auftritt verwenden</translation>
    </message>
    <message>
        <source>Use Typewriter</source>
        <translation>Schreibmaschine nehmen</translation>
    </message>
    <message>
        <source>Recreate the outlines</source>
        <translation>Umrisse neu erstellen</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>An Höhe anpassen</translation>
    </message>
    <message>
        <source>Fit height and width</source>
        <translation>An Höhe und Breite anpassen</translation>
    </message>
    <message>
        <source>Turn on dazzle</source>
        <translation>Farbspiel einschalten</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Use the first color</source>
        <translation>Erste Farbe verwenden</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::form::AttributeForm</name>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.gif *.bmp);;All files (*)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.gif *.bmp);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Found %1, expected %2. %3</source>
        <translation>Gefunden: %1, erwartet: %2. %3</translation>
    </message>
    <message>
        <source>w </source>
        <translation>B </translation>
    </message>
    <message>
        <source>h </source>
        <translation>H </translation>
    </message>
    <message>
        <source>x </source>
        <translation>x </translation>
    </message>
    <message>
        <source>y </source>
        <translation>y </translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Sizes as set</source>
        <translation>Größen wie angegeben</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>An Höhe anpassen</translation>
    </message>
    <message>
        <source>Fit height and width</source>
        <translation>An Höhe und Breite anpassen</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Reading start</source>
        <translation>Leseanfang</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Text that scrolls sideways cannot be aligned.</source>
        <translation>Seitlich laufender Text lässt sich nicht ausrichten.</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Innenabstand</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Break between words</source>
        <translation>Zwischen Wörtern umbrechen</translation>
    </message>
    <message>
        <source>Scrolling text has no pages.</source>
        <translation>Laufender Text hat keine Seiten.</translation>
    </message>
    <message>
        <source>Style %1</source>
        <translation>Stil %1</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::form::Inspector</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platzierung</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::form::IntegratorView</name>
    <message>
        <source>Call</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>Compare with a library…</source>
        <translation>Mit Bibliothek vergleichen …</translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s) differ</source>
        <translation>
            <numerusform>%n Pixel weicht ab</numerusform>
            <numerusform>%n Pixel weichen ab</numerusform>
        </translation>
    </message>
    <message>
        <source>Libraries (*.so*)</source>
        <translation>Bibliotheken (*.so*)</translation>
    </message>
    <message>
        <source>Make it fail</source>
        <translation>Fehlschlagen lassen</translation>
    </message>
    <message>
        <source>Clear failures</source>
        <translation>Fehler aufheben</translation>
    </message>
    <message>
        <source>Stop comparing</source>
        <translation>Vergleich beenden</translation>
    </message>
    <message>
        <source>Device calls</source>
        <translation>Geräteaufrufe</translation>
    </message>
    <message>
        <source>no. </source>
        <translation>Nr. </translation>
    </message>
    <message>
        <source>Number of the call, counted from the start</source>
        <translation>Nummer des Aufrufs, ab dem Start gezählt</translation>
    </message>
    <message>
        <source>Plays from the start and makes this device call fail</source>
        <translation>Spielt von vorn und lässt diesen Geräteaufruf fehlschlagen</translation>
    </message>
    <message>
        <source>Lets all device calls succeed again</source>
        <translation>Lässt alle Geräteaufrufe wieder gelingen</translation>
    </message>
    <message>
        <source>Plays the scene with a second plugin library, too, and marks the pixels that differ</source>
        <translation>Spielt die Szene auch mit einer zweiten Plugin-Bibliothek und markiert abweichende Pixel</translation>
    </message>
    <message>
        <source>Made to fail: %1</source>
        <translation>Schlägt fehl: %1</translation>
    </message>
    <message>
        <source>No device calls at tick %1</source>
        <translation>Keine Geräteaufrufe in Takt %1</translation>
    </message>
    <message>
        <source>No pixels differ</source>
        <translation>Keine Abweichung</translation>
    </message>
    <message>
        <source>Choose a plugin library</source>
        <translation>Plugin-Bibliothek wählen</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::motion::MotionPicker</name>
    <message>
        <source>Search motions</source>
        <translation>Bewegung suchen</translation>
    </message>
    <message>
        <source>All families</source>
        <translation>Alle Familien</translation>
    </message>
    <message>
        <source>Motions</source>
        <translation>Bewegungen</translation>
    </message>
    <message>
        <source>Drag to resize the list</source>
        <translation>Ziehen, um die Höhe der Liste zu ändern</translation>
    </message>
    <message>
        <source>Motion family</source>
        <translation>Bewegungsfamilie</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::motion::Thumbnails</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::shell::ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Export a film</source>
        <translation>Einen Film exportieren</translation>
    </message>
    <message>
        <source>Folder of PNGs</source>
        <translation>Ordner mit PNGs</translation>
    </message>
    <message>
        <source> ×</source>
        <translation> ×</translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>Die Datei wählen</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>As a command</source>
        <translation>Als Befehl</translation>
    </message>
    <message>
        <source>sign</source>
        <translation>schild</translation>
    </message>
    <message>
        <source>Picture %1 of %2</source>
        <translation>Bild %1 von %2</translation>
    </message>
    <message>
        <source>Looking for the end: tick %1</source>
        <translation>Das Ende wird gesucht: Takt %1</translation>
    </message>
    <message>
        <source>Films of this format cannot be.</source>
        <translation>Filme dieses Formats können das nicht.</translation>
    </message>
    <message>
        <source>This format loses colors.</source>
        <translation>Dieses Format verliert Farben.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 exists already.</source>
        <translation>%1 ist schon vorhanden.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Beginnt</translation>
    </message>
    <message>
        <source>Canceled; nothing was written.</source>
        <translation>Abgebrochen; nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>As round LEDs on black</source>
        <translation>Als runde LEDs auf Schwarz</translation>
    </message>
    <message>
        <source>All pages, as the host times them</source>
        <translation>Alle Seiten, wie der Host sie taktet</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>Durchsichtiger Hintergrund</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Verlustfrei</translation>
    </message>
    <message>
        <source>PNG, one picture</source>
        <translation>PNG, ein Bild</translation>
    </message>
    <message>
        <source>All of it</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>The loop, %1 to %2</source>
        <translation>Die Schleife, %1 bis %2</translation>
    </message>
    <message>
        <source>This picture, tick %1</source>
        <translation>Dieses Bild, Tick %1</translation>
    </message>
    <message>
        <source>What is exported</source>
        <translation>Was exportiert wird</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Magnify</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>%1 · %2 and the last hold once more</source>
        <translation>%1 · %2 und die letzte Haltezeit noch einmal</translation>
    </message>
    <message>
        <source>%1 · to the end of all texts</source>
        <translation>%1 · bis zum Ende aller Texte</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>LEDs are on black.</source>
        <translation>LEDs stehen auf Schwarz.</translation>
    </message>
    <message>
        <source>Counting colors: picture %1 of %2</source>
        <translation>Farben zählen: Bild %1 von %2</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::shell::MainWindow</name>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;LEDs</source>
        <translation>&amp;LEDs</translation>
    </message>
    <message>
        <source>%1 diameters</source>
        <translation>%1 Durchmesser</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>%1 ×</source>
        <translation>%1 ×</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Abs&amp;pielen</translation>
    </message>
    <message>
        <source>&amp;Play or stop</source>
        <translation>A&amp;bspielen oder anhalten</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>One tick back</source>
        <translation>Einen Takt zurück</translation>
    </message>
    <message>
        <source>Ten ticks back</source>
        <translation>Zehn Takte zurück</translation>
    </message>
    <message>
        <source>Shift+←</source>
        <translation>Umschalt+←</translation>
    </message>
    <message>
        <source>Shift+→</source>
        <translation>Umschalt+→</translation>
    </message>
    <message>
        <source>Previous page mark</source>
        <translation>Vorherige Seitenmarke</translation>
    </message>
    <message>
        <source>Next page mark</source>
        <translation>Nächste Seitenmarke</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Animated Text Studio</source>
        <translation>Animated Text Studio</translation>
    </message>
    <message>
        <source>Scenes (*.json)</source>
        <translation>Szenen (*.json)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Integrator</source>
        <translation>Integration</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 has changed on disk.</source>
        <translation>%1 wurde auf dem Datenträger geändert.</translation>
    </message>
    <message>
        <source>Add page</source>
        <translation>Seite hinzufügen</translation>
    </message>
    <message>
        <source>Add text</source>
        <translation>Text hinzufügen</translation>
    </message>
    <message>
        <source>Duplicate text</source>
        <translation>Text duplizieren</translation>
    </message>
    <message>
        <source>Remove text</source>
        <translation>Text entfernen</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>E&amp;infügen</translation>
    </message>
    <message>
        <source>Paste &amp;with styles</source>
        <translation>Mit F&amp;ormatierung einfügen</translation>
    </message>
    <message>
        <source>Ctrl+Space</source>
        <translation>Ctrl+Space</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Neu …</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Zoom (Ctrl+wheel, Ctrl+0, Ctrl++, Ctrl+-)</source>
        <translation>Zoom (Strg+Mausrad, Strg+0, Strg++, Strg+-)</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>Duplicate page</source>
        <translation>Seite duplizieren</translation>
    </message>
    <message>
        <source>Remove page</source>
        <translation>Seite entfernen</translation>
    </message>
    <message>
        <source>Rename text</source>
        <translation>Text umbenennen</translation>
    </message>
    <message>
        <source>Move text</source>
        <translation>Text verschieben</translation>
    </message>
    <message>
        <source>Move page</source>
        <translation>Seite verschieben</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Move to page</source>
        <translation>Auf Seite verschieben</translation>
    </message>
    <message>
        <source>New page</source>
        <translation>Neue Seite</translation>
    </message>
    <message>
        <source>Page %1: %2</source>
        <translation>Seite %1: %2</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>Text: %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Display and fields</source>
        <translation>Anzeige und Felder</translation>
    </message>
    <message>
        <source>Alt+arrows</source>
        <translation>Alt+Pfeile</translation>
    </message>
    <message>
        <source>Ctrl+wheel</source>
        <translation>Strg+Mausrad</translation>
    </message>
    <message>
        <source>Space+drag, middle button</source>
        <translation>Leertaste+Ziehen, mittlere Taste</translation>
    </message>
    <message>
        <source>Ctrl while dragging</source>
        <translation>Strg beim Ziehen</translation>
    </message>
    <message>
        <source>Shift+drag</source>
        <translation>Umschalt+Ziehen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>%1 has unsaved changes.</source>
        <translation>%1 hat nicht gespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>No recent scenes</source>
        <translation>Keine zuletzt geöffneten Szenen</translation>
    </message>
    <message>
        <source>The studio stopped before %1 was saved (%2).</source>
        <translation>Das Studio wurde beendet, bevor %1 gespeichert war (%2).</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Delete copy</source>
        <translation>Kopie löschen</translation>
    </message>
    <message>
        <source>Play on L&amp;EDs…</source>
        <translation>Auf L&amp;EDs abspielen …</translation>
    </message>
    <message>
        <source>&amp;Edit text</source>
        <translation>Text &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Fit to window</source>
        <translation>An &amp;Fenster anpassen</translation>
    </message>
    <message>
        <source>Show the pixels as round LEDs (Ctrl+L)</source>
        <translation>Pixel als runde LEDs anzeigen (Strg+L)</translation>
    </message>
    <message>
        <source>LED &amp;pitch</source>
        <translation>LED-&amp;Abstand</translation>
    </message>
    <message>
        <source>&amp;Checkered background</source>
        <translation>Ka&amp;rierter Hintergrund</translation>
    </message>
    <message>
        <source>Show all &amp;areas</source>
        <translation>Alle &amp;Bereiche anzeigen</translation>
    </message>
    <message>
        <source>Show &amp;rulers</source>
        <translation>L&amp;ineale anzeigen</translation>
    </message>
    <message>
        <source>Play &amp;backward, then faster</source>
        <translation>&amp;Rückwärts abspielen, dann schneller</translation>
    </message>
    <message>
        <source>Play &amp;forward, then faster</source>
        <translation>&amp;Vorwärts abspielen, dann schneller</translation>
    </message>
    <message>
        <source>One tick forward</source>
        <translation>Einen Takt vor</translation>
    </message>
    <message>
        <source>Ten ticks forward</source>
        <translation>Zehn Takte vor</translation>
    </message>
    <message>
        <source>Go to start</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Zum Ende</translation>
    </message>
    <message>
        <source>Turn page &amp;loop on or off</source>
        <translation>Seiten&amp;schleife ein- oder ausschalten</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&lt;b&gt;Animated Text Studio %1&lt;/b&gt;&lt;p&gt;The plugin itself paints the preview, so it shows the same pixels as the sign.</source>
        <translation>&lt;b&gt;Animated Text Studio %1&lt;/b&gt;&lt;p&gt;Die Vorschau malt das Plugin selbst. Sie zeigt deshalb dieselben Pixel wie das Schild.</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Play or stop, from any field</source>
        <translation>Abspielen oder anhalten, aus jedem Feld</translation>
    </message>
    <message>
        <source>Move the area by 1 px. Shift: resize it. Ctrl: by 10 px</source>
        <translation>Bereich um 1 px verschieben. Umschalt: Größe ändern. Strg: um 10 px</translation>
    </message>
    <message>
        <source>Zoom the display or the timeline</source>
        <translation>Anzeige oder Zeitleiste zoomen</translation>
    </message>
    <message>
        <source>Scroll the display</source>
        <translation>Anzeige verschieben</translation>
    </message>
    <message>
        <source>Move or resize the area without snapping</source>
        <translation>Bereich ohne Einrasten verschieben oder skalieren</translation>
    </message>
    <message>
        <source>Timeline: loop a range. Number: change it in steps of 10</source>
        <translation>Zeitleiste: Abschnitt wiederholen. Zahl: in Zehnerschritten ändern</translation>
    </message>
    <message>
        <source>Leave a field. Display: clear the selection</source>
        <translation>Feld verlassen. Anzeige: Auswahl aufheben</translation>
    </message>
    <message>
        <source>Number: return to the display</source>
        <translation>Zahl: zurück zur Anzeige</translation>
    </message>
    <message>
        <source>Open scene</source>
        <translation>Szene öffnen</translation>
    </message>
    <message>
        <source>Save scene</source>
        <translation>Szene speichern</translation>
    </message>
    <message>
        <source>Move page up</source>
        <translation>Seite nach oben</translation>
    </message>
    <message>
        <source>Move page down</source>
        <translation>Seite nach unten</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>Bring to front</source>
        <translation>In den Vordergrund</translation>
    </message>
    <message>
        <source>Send to back</source>
        <translation>In den Hintergrund</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>No problems</source>
        <translation>Keine Probleme</translation>
    </message>
    <message numerus="yes">
        <source>%n problem(s)</source>
        <translation>
            <numerusform>%n Problem</numerusform>
            <numerusform>%n Probleme</numerusform>
        </translation>
    </message>
    <message>
        <source>Load from disk</source>
        <translation>Vom Datenträger laden</translation>
    </message>
    <message>
        <source>Keep my version</source>
        <translation>Meine Version behalten</translation>
    </message>
    <message>
        <source>Save my version as…</source>
        <translation>Meine Version speichern unter …</translation>
    </message>
    <message>
        <source>Change area</source>
        <translation>Bereich ändern</translation>
    </message>
    <message>
        <source>an untitled scene</source>
        <translation>eine unbenannte Szene</translation>
    </message>
    <message>
        <source>All pages: %1</source>
        <translation>Alle Seiten: %1</translation>
    </message>
    <message>
        <source>Add te&amp;xt</source>
        <translation>&amp;Text hinzufügen</translation>
    </message>
    <message>
        <source>Add pa&amp;ge</source>
        <translation>&amp;Seite hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Search motions</source>
        <translation>Bewegun&amp;g suchen</translation>
    </message>
    <message>
        <source>New scene</source>
        <translation>Neue Szene</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::shell::SceneList</name>
    <message>
        <source>Pages and texts</source>
        <translation>Seiten und Texte</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>(empty text)</source>
        <translation>(leerer Text)</translation>
    </message>
    <message>
        <source>Display %1 × %2</source>
        <translation>Anzeige %1 × %2</translation>
    </message>
    <message>
        <source>Page %1 · %2</source>
        <translation>Seite %1 · %2</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::text::TextEditor</name>
    <message>
        <source>Paste with styles</source>
        <translation>Mit Formatierung einfügen</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::text::TextPanel</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>B</source>
        <translation>F</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>I</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>U</source>
        <translation>U</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Color of the selection</source>
        <translation>Farbe der Auswahl</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Andere …</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>No installed font has them.</source>
        <translation>Keine installierte Schrift enthält sie.</translation>
    </message>
    <message>
        <source>Will be missing: neither %1 nor any other installed font has it.</source>
        <translation>Wird fehlen: Weder %1 noch eine andere installierte Schrift enthält es.</translation>
    </message>
    <message>
        <source>Not in any font, will be missing: %1</source>
        <translation>In keiner Schrift vorhanden, wird fehlen: %1</translation>
    </message>
    <message>
        <source>Color of the selection: %1</source>
        <translation>Farbe der Auswahl: %1</translation>
    </message>
    <message>
        <source>Use another font for these</source>
        <translation>Andere Schrift dafür verwenden</translation>
    </message>
    <message>
        <source>Type your text</source>
        <translation>Text eingeben</translation>
    </message>
    <message>
        <source>Font size in pixels on the sign</source>
        <translation>Schriftgröße in Pixeln auf dem Schild</translation>
    </message>
    <message>
        <source>Will be missing: its font has a picture instead of an outline (font: %1).</source>
        <translation>Wird fehlen: Die Schrift hat dafür ein Bild statt eines Umrisses (Schrift: %1).</translation>
    </message>
    <message>
        <source>Wider than a page, will be split: %1</source>
        <translation>Breiter als eine Seite, wird geteilt: %1</translation>
    </message>
    <message>
        <source>Letters are cut off: %1 px at the top, %2 px at the bottom.</source>
        <translation>Zeichen sind abgeschnitten: oben %1 px, unten %2 px.</translation>
    </message>
    <message>
        <source>The sign uses the first character&apos;s color for the whole text.</source>
        <translation>Das Schild zeigt den ganzen Text in der Farbe des ersten Zeichens.</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::time::Timeline</name>
    <message>
        <source>Timeline</source>
        <translation>Zeitleiste</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>%1, tick %2</source>
        <translation>%1, Takt %2</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>abgeschnitten</translation>
    </message>
    <message>
        <source>Planned: %1</source>
        <translation>Geplant: %1</translation>
    </message>
    <message>
        <source>Needs: %1</source>
        <translation>Braucht: %1</translation>
    </message>
    <message>
        <source>entrance</source>
        <translation>Auftritt</translation>
    </message>
    <message>
        <source>hold</source>
        <translation>Haltezeit</translation>
    </message>
    <message>
        <source>Click or drag: go to that time. Shift+drag: loop a range. Ctrl+wheel: zoom.</source>
        <translation>Klicken oder ziehen: zu diesem Zeitpunkt gehen. Umschalt+Ziehen: Abschnitt wiederholen. Strg+Mausrad: zoomen.</translation>
    </message>
    <message>
        <source>Page %1: hold, %2</source>
        <translation>Seite %1: Haltezeit, %2</translation>
    </message>
    <message>
        <source>Page %1: entrance, %2</source>
        <translation>Seite %1: Auftritt, %2</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::time::TransportBar</name>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>One tick back</source>
        <translation>Einen Takt zurück</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Diese Seite</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>%1  tick %2</source>
        <translation>%1  Takt %2</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>planned %1 · needs %2</source>
        <translation>geplant %1 · braucht %2</translation>
    </message>
    <message numerus="yes">
        <source> · %n page(s) lost</source>
        <translation>
            <numerusform> · %n Seite verloren</numerusform>
            <numerusform> · %n Seiten verloren</numerusform>
        </translation>
    </message>
    <message>
        <source> · %1 lost</source>
        <translation> · %1 verloren</translation>
    </message>
    <message>
        <source>Go to start</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>One tick forward</source>
        <translation>Einen Takt vor</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Zum Ende</translation>
    </message>
    <message>
        <source>Loop the page</source>
        <translation>Seite wiederholen</translation>
    </message>
    <message>
        <source>Shift+drag on the timeline loops a range</source>
        <translation>Umschalt+Ziehen in der Zeitleiste wiederholt einen Abschnitt</translation>
    </message>
    <message>
        <source>What to play</source>
        <translation>Was abgespielt wird</translation>
    </message>
    <message>
        <source>This page: until all its texts have ended.
All pages: one after another, each for its planned time, as on the host.</source>
        <translation>Diese Seite: bis alle ihre Texte zu Ende sind.
Alle Seiten: nacheinander, jede für ihre geplante Zeit, wie auf dem Host.</translation>
    </message>
    <message>
        <source>this text is empty</source>
        <translation>dieser Text ist leer</translation>
    </message>
    <message>
        <source>planned %1 · too long to measure</source>
        <translation>geplant %1 · zu lang zum Messen</translation>
    </message>
    <message>
        <source> · stays %1 longer</source>
        <translation> · steht %1 länger</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::worker::Export</name>
    <message>
        <source>The program animtext, which makes films, was not found. Install it beside the studio.</source>
        <translation>Das Programm animtext, das die Filme macht, wurde nicht gefunden. Es gehört neben das Studio.</translation>
    </message>
    <message>
        <source>The export ended unexpectedly.</source>
        <translation>Der Export wurde unerwartet beendet.</translation>
    </message>
</context>
<context>
    <name>AnimText::studio::worker::WorkerLink</name>
    <message>
        <source>The plugin crashed.</source>
        <translation>Das Plugin ist abgestürzt.</translation>
    </message>
    <message>
        <source>The plugin stopped responding and was terminated.</source>
        <translation>Das Plugin reagierte nicht mehr und wurde beendet.</translation>
    </message>
    <message>
        <source>The playback process ended unexpectedly.</source>
        <translation>Der Abspielprozess wurde unerwartet beendet.</translation>
    </message>
</context>
<context>
    <name>Attributes</name>
    <message>
        <source>every motion</source>
        <translation>jede Bewegung</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>entrance effects</source>
        <translation>Auftrittseffekte</translation>
    </message>
    <message>
        <source>scrolling</source>
        <translation>laufender Text</translation>
    </message>
    <message>
        <source>the dazzle background</source>
        <translation>der Farbspiel-Hintergrund</translation>
    </message>
    <message>
        <source>the dazzle background with a gradient</source>
        <translation>der Farbspiel-Hintergrund mit Verlauf</translation>
    </message>
    <message>
        <source>the dazzle background with a picture</source>
        <translation>der Farbspiel-Hintergrund mit Bild</translation>
    </message>
    <message>
        <source>the neon background</source>
        <translation>der Neon-Hintergrund</translation>
    </message>
    <message>
        <source>the neon background with a style above 28</source>
        <translation>der Neon-Hintergrund mit einem Stil über 28</translation>
    </message>
    <message>
        <source>the whole text, from its first row</source>
        <translation>der ganze Text, aus seiner ersten Zeile</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>units of 100 ms</source>
        <translation>Einheiten zu 100 ms</translation>
    </message>
    <message>
        <source>steps</source>
        <translation>Stufen</translation>
    </message>
    <message>
        <source>times</source>
        <translation>mal</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>red × 65536 + green × 256 + blue</source>
        <translation>Rot × 65536 + Grün × 256 + Blau</translation>
    </message>
    <message>
        <source>The neon background is off.</source>
        <translation>Der Neon-Hintergrund ist aus.</translation>
    </message>
    <message>
        <source>The sign paints text without shadows.</source>
        <translation>Das Schild malt Text ohne Schatten.</translation>
    </message>
    <message>
        <source>The sign outlines text in its own color.</source>
        <translation>Das Schild umrandet Text in dessen eigener Farbe.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>the text; each of its UTF-16 units is a character</source>
        <translation>der Text; jede seiner UTF-16-Einheiten ist ein Zeichen</translation>
    </message>
    <message>
        <source>Hollow</source>
        <translation>Hohl</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>the color of the character</source>
        <translation>die Farbe des Zeichens</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>the height of the character&apos;s line</source>
        <translation>die Höhe der Zeile des Zeichens</translation>
    </message>
    <message>
        <source>Outlines</source>
        <translation>Umrisse</translation>
    </message>
    <message>
        <source>the outlines of the characters</source>
        <translation>die Umrisse der Zeichen</translation>
    </message>
    <message>
        <source>Descents</source>
        <translation>Unterlängen</translation>
    </message>
    <message>
        <source>how far each character reaches below its baseline</source>
        <translation>wie weit jedes Zeichen unter seine Grundlinie reicht</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Stroke color</source>
        <translation>Konturfarbe</translation>
    </message>
    <message>
        <source>the color of that outline</source>
        <translation>die Farbe dieses Umrisses</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Kind of shadow</source>
        <translation>Schattenart</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effekt</translation>
    </message>
    <message>
        <source>the entrance effect</source>
        <translation>der Auftrittseffekt</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Scroll speed</source>
        <translation>Lauftempo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>the area&apos;s top left corner on the display: x, y</source>
        <translation>die linke obere Ecke des Bereichs auf der Anzeige: x, y</translation>
    </message>
    <message>
        <source>the area in which the text is shown: width, height</source>
        <translation>der Bereich, in dem der Text gezeigt wird: Breite, Höhe</translation>
    </message>
    <message>
        <source>Dazzle</source>
        <translation>Farbspiel</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Kind of gradient</source>
        <translation>Verlaufsart</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>a picture frames the background</source>
        <translation>ein Bild rahmt den Hintergrund</translation>
    </message>
    <message>
        <source>Picture file</source>
        <translation>Bilddatei</translation>
    </message>
    <message>
        <source>the picture that frames the background</source>
        <translation>das Bild, das den Hintergrund rahmt</translation>
    </message>
    <message>
        <source>Neon</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>lights run around the text</source>
        <translation>Lichter laufen um den Text</translation>
    </message>
    <message>
        <source>Neon style</source>
        <translation>Neonstil</translation>
    </message>
    <message>
        <source>Neon picture</source>
        <translation>Neonbild</translation>
    </message>
    <message>
        <source>entrance effect</source>
        <translation>Auftrittseffekt</translation>
    </message>
    <message>
        <source>left</source>
        <translation>nach links</translation>
    </message>
    <message>
        <source>right</source>
        <translation>nach rechts</translation>
    </message>
    <message>
        <source>up</source>
        <translation>nach oben</translation>
    </message>
    <message>
        <source>down</source>
        <translation>nach unten</translation>
    </message>
    <message>
        <source>linear</source>
        <translation>linear</translation>
    </message>
    <message>
        <source>radial</source>
        <translation>radial</translation>
    </message>
    <message>
        <source>conical</source>
        <translation>konisch</translation>
    </message>
    <message>
        <source>any whole number</source>
        <translation>jede ganze Zahl</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 oder mehr</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Haltezeit</translation>
    </message>
    <message>
        <source>authoring tools; the sign uses the outlines</source>
        <translation>Werkzeuge zum Gestalten; das Schild nutzt die Umrisse</translation>
    </message>
    <message>
        <source>Applies only to entrance effects; this text scrolls.</source>
        <translation>Gilt nur für Auftrittseffekte; dieser Text läuft.</translation>
    </message>
    <message>
        <source>Applies only to scrolling; this text has an entrance effect.</source>
        <translation>Gilt nur für laufenden Text; dieser Text hat einen Auftrittseffekt.</translation>
    </message>
    <message>
        <source>Applies only to the dazzle background, which is off; the text keeps its color.</source>
        <translation>Gilt nur für den Farbspiel-Hintergrund, der aus ist; der Text behält seine Farbe.</translation>
    </message>
    <message>
        <source>The gradient is off.</source>
        <translation>Der Verlauf ist aus.</translation>
    </message>
    <message>
        <source>The picture is off.</source>
        <translation>Das Bild ist aus.</translation>
    </message>
    <message>
        <source>Only styles above 28 show a picture.</source>
        <translation>Nur Stile über 28 zeigen ein Bild.</translation>
    </message>
    <message>
        <source>the plugin that shows the text</source>
        <translation>das Plugin, das den Text zeigt</translation>
    </message>
    <message>
        <source>only the outlines of the characters are painted</source>
        <translation>nur die Umrisse der Zeichen werden gemalt</translation>
    </message>
    <message>
        <source>the font family of the outline</source>
        <translation>die Schriftfamilie des Umrisses</translation>
    </message>
    <message>
        <source>the font size of the outline</source>
        <translation>die Schriftgröße des Umrisses</translation>
    </message>
    <message>
        <source>the outline is bold</source>
        <translation>der Umriss ist fett</translation>
    </message>
    <message>
        <source>the outline is italic</source>
        <translation>der Umriss ist kursiv</translation>
    </message>
    <message>
        <source>the outline is underlined</source>
        <translation>der Umriss ist unterstrichen</translation>
    </message>
    <message>
        <source>the distance to the next character</source>
        <translation>der Abstand zum nächsten Zeichen</translation>
    </message>
    <message>
        <source>requests an outline in another color</source>
        <translation>verlangt einen Umriss in anderer Farbe</translation>
    </message>
    <message>
        <source>requests a shadow</source>
        <translation>verlangt einen Schatten</translation>
    </message>
    <message>
        <source>the kind of that shadow</source>
        <translation>die Art dieses Schattens</translation>
    </message>
    <message>
        <source>how the text appears</source>
        <translation>wie der Text erscheint</translation>
    </message>
    <message>
        <source>the speed of the entrance effect; 9 is fastest</source>
        <translation>das Tempo des Auftrittseffekts; 9 ist am schnellsten</translation>
    </message>
    <message>
        <source>the direction of scrolling</source>
        <translation>die Laufrichtung</translation>
    </message>
    <message>
        <source>the speed of scrolling; 9 is fastest</source>
        <translation>das Tempo des laufenden Textes; 9 ist am schnellsten</translation>
    </message>
    <message>
        <source>how many times the whole text is shown</source>
        <translation>wie oft der ganze Text gezeigt wird</translation>
    </message>
    <message>
        <source>how long each page stays after its entrance</source>
        <translation>wie lange jede Seite nach ihrem Auftritt stehen bleibt</translation>
    </message>
    <message>
        <source>colors move behind the text</source>
        <translation>Farben ziehen hinter dem Text vorbei</translation>
    </message>
    <message>
        <source>the colors blend into each other</source>
        <translation>die Farben gehen ineinander über</translation>
    </message>
    <message>
        <source>the shape of the gradient</source>
        <translation>die Form des Verlaufs</translation>
    </message>
    <message>
        <source>the style of the lights: up to 28, drawn borders; above, a picture</source>
        <translation>der Stil der Lichter: bis 28 gezeichnete Ränder, darüber ein Bild</translation>
    </message>
    <message>
        <source>the animated picture of the neon background</source>
        <translation>das animierte Bild des Neon-Hintergrunds</translation>
    </message>
</context>
<context>
    <name>Colors</name>
    <message>
        <source>Amber</source>
        <translation>Bernstein</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Copy the command</source>
        <translation>Den Befehl kopieren</translation>
    </message>
</context>
<context>
    <name>Motions</name>
    <message>
        <source>frogs</source>
        <translation>Frösche</translation>
    </message>
    <message>
        <source>scroll</source>
        <translation>Laufschrift</translation>
    </message>
    <message>
        <source>characters grow in pairs from both ends of the page to its middle, twice</source>
        <translation>Zeichen wachsen paarweise von beiden Enden der Seite zur Mitte, zweimal</translation>
    </message>
    <message>
        <source>every character rocks by up to 45 degrees, on one foot and then on the other</source>
        <translation>jedes Zeichen wippt um bis zu 45 Grad, erst auf einem Fuß, dann auf dem anderen</translation>
    </message>
    <message>
        <source>the characters, one above another, rise from the bottom edge without end</source>
        <translation>die Zeichen steigen übereinander vom unteren Rand auf, ohne Ende</translation>
    </message>
    <message>
        <source>the characters, one above another, sink from the top edge without end</source>
        <translation>die Zeichen sinken übereinander vom oberen Rand herab, ohne Ende</translation>
    </message>
    <message>
        <source>Rise one by one</source>
        <translation>Einzeln aufsteigen</translation>
    </message>
    <message>
        <source>Drop one by one</source>
        <translation>Einzeln fallen</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Schreibmaschine</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>Sway</source>
        <translation>Schwanken</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Pulsieren</translation>
    </message>
    <message>
        <source>Tremble</source>
        <translation>Zittern</translation>
    </message>
    <message>
        <source>Grow one by one</source>
        <translation>Einzeln wachsen</translation>
    </message>
    <message>
        <source>Roll in</source>
        <translation>Hereinrollen</translation>
    </message>
    <message>
        <source>Flip upright</source>
        <translation>Hochklappen</translation>
    </message>
    <message>
        <source>Drop and bounce</source>
        <translation>Fallen und federn</translation>
    </message>
    <message>
        <source>Widen to the right</source>
        <translation>Nach rechts aufziehen</translation>
    </message>
    <message>
        <source>Grow from both ends</source>
        <translation>Von außen wachsen</translation>
    </message>
    <message>
        <source>Gather and flip</source>
        <translation>Sammeln und klappen</translation>
    </message>
    <message>
        <source>Gather and spin</source>
        <translation>Sammeln und drehen</translation>
    </message>
    <message>
        <source>Rock</source>
        <translation>Wippen</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Nach links laufen</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Nach rechts laufen</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Nach oben laufen</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Nach unten laufen</translation>
    </message>
    <message>
        <source>fly in</source>
        <translation>Einfliegen</translation>
    </message>
    <message>
        <source>letter by letter</source>
        <translation>Zeichen für Zeichen</translation>
    </message>
    <message>
        <source>sway and shake</source>
        <translation>Schwingen und zittern</translation>
    </message>
    <message>
        <source>spin and flip</source>
        <translation>Drehen und klappen</translation>
    </message>
    <message>
        <source>one after another</source>
        <translation>Der Reihe nach</translation>
    </message>
    <message>
        <source>stretch and slide</source>
        <translation>Dehnen und gleiten</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Fly in from the right</source>
        <translation>Von rechts einfliegen</translation>
    </message>
    <message>
        <source>characters fly in from the right edge to their places, one at a time</source>
        <translation>Zeichen fliegen einzeln vom rechten Rand an ihre Plätze</translation>
    </message>
    <message>
        <source>fly left, slide, swoosh</source>
        <translation>nach links fliegen, gleiten</translation>
    </message>
    <message>
        <source>Fly in from the left</source>
        <translation>Von links einfliegen</translation>
    </message>
    <message>
        <source>characters fly in from the left edge, the last one first; pages end at the right edge</source>
        <translation>Zeichen fliegen vom linken Rand ein, das letzte zuerst; Seiten enden am rechten Rand</translation>
    </message>
    <message>
        <source>fly right, slide, swoosh, reverse, backwards</source>
        <translation>nach rechts fliegen, gleiten, umgekehrt, rückwärts</translation>
    </message>
    <message>
        <source>characters rise from below the bottom edge to their places, one at a time</source>
        <translation>Zeichen steigen einzeln von unterhalb des unteren Randes an ihre Plätze</translation>
    </message>
    <message>
        <source>fly up, from below, lift, elevator</source>
        <translation>hochfliegen, von unten, Aufzug</translation>
    </message>
    <message>
        <source>characters drop from the top edge to their places, one at a time</source>
        <translation>Zeichen fallen einzeln vom oberen Rand an ihre Plätze</translation>
    </message>
    <message>
        <source>fly down, fall, from above</source>
        <translation>herunterfliegen, von oben</translation>
    </message>
    <message>
        <source>characters appear one at a time, as if typed</source>
        <translation>Zeichen erscheinen einzeln, wie getippt</translation>
    </message>
    <message>
        <source>type, teletype, reveal, appear</source>
        <translation>tippen, Fernschreiber, einblenden, buchstabieren</translation>
    </message>
    <message>
        <source>a wave as high as the area runs through the row from left to right</source>
        <translation>eine Welle, so hoch wie der Bereich, läuft von links nach rechts durch die Zeile</translation>
    </message>
    <message>
        <source>undulate, ripple, roller coaster, up and down</source>
        <translation>wogen, Achterbahn, auf und ab</translation>
    </message>
    <message>
        <source>the whole row sways from side to side and leans as it goes</source>
        <translation>die ganze Zeile schwankt hin und her und neigt sich dabei</translation>
    </message>
    <message>
        <source>swing, lean, slant, skew, pendulum</source>
        <translation>schwingen, neigen, schräg, kippen, Pendel</translation>
    </message>
    <message>
        <source>every character grows to one and a half times its size and back</source>
        <translation>jedes Zeichen wächst auf das Anderthalbfache und schrumpft zurück</translation>
    </message>
    <message>
        <source>beat, heartbeat, throb, breathe, scale, zoom</source>
        <translation>Herzschlag, pochen, atmen, skalieren, zoomen</translation>
    </message>
    <message>
        <source>every character jitters at random by a few pixels, for 61 frames per page</source>
        <translation>jedes Zeichen zittert zufällig um einige Pixel, 61 Bilder pro Seite</translation>
    </message>
    <message>
        <source>shake, jitter, shiver, vibrate, nervous, random</source>
        <translation>schütteln, beben, vibrieren, nervös, Zufall</translation>
    </message>
    <message>
        <source>characters grow from nothing in their places, one at a time</source>
        <translation>Zeichen wachsen an ihren Plätzen einzeln aus dem Nichts</translation>
    </message>
    <message>
        <source>zoom in, enlarge, pop up, scale up</source>
        <translation>vergrößern, einzoomen, aufploppen</translation>
    </message>
    <message>
        <source>Shrink to size</source>
        <translation>Auf Größe schrumpfen</translation>
    </message>
    <message>
        <source>characters appear at double size and shrink to their own, one at a time</source>
        <translation>Zeichen erscheinen einzeln in doppelter Größe und schrumpfen auf ihre eigene</translation>
    </message>
    <message>
        <source>zoom out, stamp, reduce, scale down</source>
        <translation>verkleinern, auszoomen, Stempel</translation>
    </message>
    <message>
        <source>Spin</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>every character turns clockwise once, around a point near its top</source>
        <translation>jedes Zeichen dreht sich einmal im Uhrzeigersinn um einen Punkt an seinem oberen Ende</translation>
    </message>
    <message>
        <source>rotate, turn, whirl</source>
        <translation>rotieren, kreisen, wirbeln</translation>
    </message>
    <message>
        <source>characters roll in from the right edge and turn counterclockwise</source>
        <translation>Zeichen rollen vom rechten Rand herein und drehen sich dabei gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>rotate, spin, wheel, tumble</source>
        <translation>rotieren, Rad, kullern, purzeln</translation>
    </message>
    <message>
        <source>Spin on the baseline</source>
        <translation>Auf dem Fuß drehen</translation>
    </message>
    <message>
        <source>every character turns clockwise once, around the middle of its baseline</source>
        <translation>jedes Zeichen dreht sich einmal im Uhrzeigersinn um die Mitte seiner Grundlinie</translation>
    </message>
    <message>
        <source>characters start upside down and flip upright over the baseline, one after another</source>
        <translation>Zeichen stehen zuerst auf dem Kopf und klappen nacheinander über die Grundlinie hoch</translation>
    </message>
    <message>
        <source>mirror, turn over, unfold, somersault</source>
        <translation>spiegeln, umklappen, aufklappen, Salto</translation>
    </message>
    <message>
        <source>Stretch and sink</source>
        <translation>Strecken und sinken</translation>
    </message>
    <message>
        <source>characters stretch upward and sink to nothing in turn, like grass in the wind</source>
        <translation>Zeichen strecken sich nacheinander nach oben und versinken, wie Gras im Wind</translation>
    </message>
    <message>
        <source>grow, squash, wave, zoom, swell</source>
        <translation>wachsen, quetschen, Welle, anschwellen</translation>
    </message>
    <message>
        <source>Drop in a cascade</source>
        <translation>Kaskade</translation>
    </message>
    <message>
        <source>characters drop from the top edge, each a little after its left neighbor</source>
        <translation>Zeichen fallen vom oberen Rand, jedes etwas später als sein linker Nachbar</translation>
    </message>
    <message>
        <source>fall, rain, waterfall, domino</source>
        <translation>herabfallen, Regen, Wasserfall, Domino</translation>
    </message>
    <message>
        <source>characters tilted by 45 degrees drop in turn, bounce once and settle upright</source>
        <translation>um 45 Grad geneigte Zeichen fallen nacheinander, federn einmal und richten sich auf</translation>
    </message>
    <message>
        <source>fall, ball, jump, tilt, tumble</source>
        <translation>hüpfen, springen, abprallen, Ball, geneigt</translation>
    </message>
    <message>
        <source>Slide in and widen</source>
        <translation>Schräg aufziehen</translation>
    </message>
    <message>
        <source>characters slide in diagonally from the top right corner and widen from nothing</source>
        <translation>Zeichen gleiten schräg von oben rechts herein und werden dabei aus dem Nichts breiter</translation>
    </message>
    <message>
        <source>zoom in, diagonal, slant, stretch</source>
        <translation>einzoomen, diagonal, strecken</translation>
    </message>
    <message>
        <source>Frog uncovers letters</source>
        <translation>Frosch deckt auf</translation>
    </message>
    <message>
        <source>a frog hops along the top edge and uncovers each character from top to bottom</source>
        <translation>ein Frosch hüpft am oberen Rand entlang und deckt jedes Zeichen von oben nach unten auf</translation>
    </message>
    <message>
        <source>animal, hop, jump, reveal, cartoon, fun</source>
        <translation>Tier, hüpfen, springen, enthüllen, Comic, lustig</translation>
    </message>
    <message>
        <source>Frog drops letters</source>
        <translation>Frosch lässt fallen</translation>
    </message>
    <message>
        <source>a frog hops along the top edge and drops each character into place in five steps</source>
        <translation>ein Frosch hüpft am oberen Rand entlang und lässt jedes Zeichen in fünf Schritten fallen</translation>
    </message>
    <message>
        <source>animal, hop, jump, fall, cartoon, fun</source>
        <translation>Tier, hüpfen, springen, Comic, lustig</translation>
    </message>
    <message>
        <source>every character widens to the right, from nothing to its full width</source>
        <translation>jedes Zeichen wird aus dem Nichts nach rechts breiter</translation>
    </message>
    <message>
        <source>stretch, unfold, open, expand</source>
        <translation>strecken, entfalten, öffnen, verbreitern</translation>
    </message>
    <message>
        <source>Slide in diagonally</source>
        <translation>Schräg hereingleiten</translation>
    </message>
    <message>
        <source>characters slide in diagonally from the top right corner, one after another</source>
        <translation>Zeichen gleiten nacheinander schräg von oben rechts herein</translation>
    </message>
    <message>
        <source>slant, fly in</source>
        <translation>diagonal, einfliegen</translation>
    </message>
    <message>
        <source>Climb over and over</source>
        <translation>Immer wieder klettern</translation>
    </message>
    <message>
        <source>every character climbs from the bottom edge to the top again and again; those on the right lead</source>
        <translation>jedes Zeichen klettert immer wieder vom unteren Rand zum oberen; die rechten voran</translation>
    </message>
    <message>
        <source>rise, repeat, loop, elevator, stairs</source>
        <translation>steigen, wiederholen, Aufzug, Treppe</translation>
    </message>
    <message>
        <source>enlarge, zoom in, outside in, scale up</source>
        <translation>vergrößern, einzoomen, von außen nach innen</translation>
    </message>
    <message>
        <source>Mirror and back</source>
        <translation>Spiegeln und zurück</translation>
    </message>
    <message>
        <source>the row shrinks to its middle, opens mirrored, and returns the same way</source>
        <translation>die Zeile schrumpft zur Mitte, öffnet sich gespiegelt und kehrt ebenso zurück</translation>
    </message>
    <message>
        <source>3D, turn around, revolve, flip, spin</source>
        <translation>3D, umdrehen, wenden, rotieren</translation>
    </message>
    <message>
        <source>the row closes up from five times its width while slanted characters narrow and widen</source>
        <translation>die Zeile rückt aus ihrer fünffachen Breite zusammen, während schräge Zeichen schmal und wieder breit werden</translation>
    </message>
    <message>
        <source>converge, assemble, squeeze, 3D</source>
        <translation>zusammenrücken, zusammenziehen, 3D</translation>
    </message>
    <message>
        <source>the row closes up from five times its width while each character turns counterclockwise once</source>
        <translation>die Zeile rückt aus ihrer fünffachen Breite zusammen, während sich jedes Zeichen einmal gegen den Uhrzeigersinn dreht</translation>
    </message>
    <message>
        <source>converge, assemble, rotate, whirl</source>
        <translation>zusammenrücken, zusammenziehen, rotieren, wirbeln</translation>
    </message>
    <message>
        <source>Zoom in and out</source>
        <translation>Ein- und auszoomen</translation>
    </message>
    <message>
        <source>the page grows from nothing and shrinks back around its middle, two and a half times</source>
        <translation>die Seite wächst zweieinhalbmal aus dem Nichts und schrumpft zurück, um ihre Mitte</translation>
    </message>
    <message>
        <source>pulse, scale, blow up, pump</source>
        <translation>pulsieren, skalieren, aufblasen, pumpen</translation>
    </message>
    <message>
        <source>shake, wobble, seesaw, tilt, dance</source>
        <translation>schaukeln, wackeln, kippeln, tanzen</translation>
    </message>
    <message>
        <source>the line enters at the right edge and leaves at the left; the device moves it</source>
        <translation>die Zeile kommt am rechten Rand herein und geht am linken hinaus; das Gerät bewegt sie</translation>
    </message>
    <message>
        <source>marquee, ticker, crawl, running text, news</source>
        <translation>Laufschrift, Lauftext, Newsticker, Nachrichten, scrollen</translation>
    </message>
    <message>
        <source>the line enters at the left edge and leaves at the right; the device moves it</source>
        <translation>die Zeile kommt am linken Rand herein und geht am rechten hinaus; das Gerät bewegt sie</translation>
    </message>
    <message>
        <source>marquee, ticker, crawl, running text</source>
        <translation>Laufschrift, Lauftext, Newsticker, scrollen</translation>
    </message>
    <message>
        <source>marquee, credits, vertical</source>
        <translation>Laufschrift, Lauftext, Abspann, senkrecht, scrollen</translation>
    </message>
    <message>
        <source>marquee, vertical</source>
        <translation>Laufschrift, Lauftext, senkrecht, scrollen</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>The display stays dark.</source>
        <translation>Die Anzeige bleibt dunkel.</translation>
    </message>
    <message>
        <source>Nothing can be painted.</source>
        <translation>Nichts kann gemalt werden.</translation>
    </message>
    <message>
        <source>Characters without a row are 0 pixels wide and high, or red.</source>
        <translation>Zeichen ohne Zeile sind 0 Pixel breit und hoch oder rot.</translation>
    </message>
    <message>
        <source>The file may belong to another text.</source>
        <translation>Die Datei gehört vielleicht zu einem anderen Text.</translation>
    </message>
    <message>
        <source>The character leaves a gap.</source>
        <translation>Das Zeichen lässt eine Lücke.</translation>
    </message>
    <message>
        <source>Letters are cut off at the top or bottom.</source>
        <translation>Buchstaben sind oben oder unten abgeschnitten.</translation>
    </message>
    <message>
        <source>One text covers another on the same page.</source>
        <translation>Ein Text verdeckt einen anderen auf derselben Seite.</translation>
    </message>
    <message>
        <source>The host has no plugin for this type and skips the text.</source>
        <translation>Der Host hat kein Plugin für diesen Typ und überspringt den Text.</translation>
    </message>
    <message>
        <source>The part outside the display is not visible.</source>
        <translation>Der Teil außerhalb der Anzeige ist nicht sichtbar.</translation>
    </message>
    <message>
        <source>The picture is larger than the plugin&apos;s limit, so nothing is painted.</source>
        <translation>Das Bild überschreitet die Grenze des Plugins, deshalb wird nichts gemalt.</translation>
    </message>
    <message>
        <source>This text is empty.</source>
        <translation>Dieser Text ist leer.</translation>
    </message>
    <message>
        <source>One empty frame is shown forever.</source>
        <translation>Ein leeres Bild bleibt für immer stehen.</translation>
    </message>
    <message>
        <source>Empty frames are shown, and the text never ends.</source>
        <translation>Es erscheinen leere Bilder, und der Text endet nie.</translation>
    </message>
    <message>
        <source>Motions are made for speeds 0 to 9; at others they stall or jump.</source>
        <translation>Bewegungen sind für Tempo 0 bis 9 gemacht; bei anderen stocken oder springen sie.</translation>
    </message>
    <message>
        <source>The text counts as finished after its first frame.</source>
        <translation>Der Text gilt schon nach dem ersten Bild als beendet.</translation>
    </message>
    <message>
        <source>Each page disappears as soon as it is complete.</source>
        <translation>Jede Seite verschwindet, sobald sie vollständig ist.</translation>
    </message>
    <message>
        <source>Only 1 turns it on, but the layers are stacked as if it were on.</source>
        <translation>Nur 1 schaltet es ein; die Ebenen liegen trotzdem so, als wäre es an.</translation>
    </message>
    <message>
        <source>Surplus rows count toward the text&apos;s width and its largest character.</source>
        <translation>Überzählige Zeilen gehen in die Breite des Textes und in sein größtes Zeichen ein.</translation>
    </message>
    <message>
        <source>Non-numeric values count as 0, so characters overlap.</source>
        <translation>Werte, die keine Zahl sind, gelten als 0; Zeichen überdecken sich.</translation>
    </message>
    <message>
        <source>Without outlines the text is invisible; without descents it sits too low.</source>
        <translation>Ohne Umrisse ist der Text unsichtbar; ohne Unterlängen sitzt er zu tief.</translation>
    </message>
    <message>
        <source>The background is shown without its picture.</source>
        <translation>Der Hintergrund wird ohne sein Bild gezeigt.</translation>
    </message>
    <message>
        <source>The sign rejects the whole file.</source>
        <translation>Das Schild weist die ganze Datei zurück.</translation>
    </message>
    <message>
        <source>The sign rejects the outline, so the character is missing.</source>
        <translation>Das Schild weist den Umriss zurück, deshalb fehlt das Zeichen.</translation>
    </message>
    <message>
        <source>Characters without an outline are missing; those without a descent sit too low.</source>
        <translation>Zeichen ohne Umriss fehlen; solche ohne Unterlänge sitzen zu tief.</translation>
    </message>
    <message>
        <source>The character gets its own page and is cut off.</source>
        <translation>Das Zeichen bekommt eine eigene Seite und wird abgeschnitten.</translation>
    </message>
    <message>
        <source>The part beyond pixel 31,999 is painted white.</source>
        <translation>Der Teil jenseits von Pixel 31.999 wird weiß gemalt.</translation>
    </message>
    <message>
        <source>Gradients work only with the dazzle background; the text keeps its color.</source>
        <translation>Verläufe wirken nur mit dem Farbspiel-Hintergrund; der Text behält seine Farbe.</translation>
    </message>
    <message>
        <source>Pictures work only with the dazzle background; the text keeps its color.</source>
        <translation>Bilder wirken nur mit dem Farbspiel-Hintergrund; der Text behält seine Farbe.</translation>
    </message>
    <message>
        <source>The sign outlines text in its own color.</source>
        <translation>Das Schild umrandet Text in dessen eigener Farbe.</translation>
    </message>
    <message>
        <source>The sign paints text without shadows.</source>
        <translation>Das Schild malt Text ohne Schatten.</translation>
    </message>
    <message>
        <source>The whole text has the color of its first character.</source>
        <translation>Der ganze Text hat die Farbe seines ersten Zeichens.</translation>
    </message>
    <message>
        <source>The sign uses only the lowest 24 bits, which are another color.</source>
        <translation>Das Schild nutzt nur die untersten 24 Bit; sie ergeben eine andere Farbe.</translation>
    </message>
    <message>
        <source>No tool can play it.</source>
        <translation>Kein Programm kann die Szene abspielen.</translation>
    </message>
</context>
<context>
    <name>SceneFolder</name>
    <message>
        <source>Cannot write the temporary file %1: %2.</source>
        <translation>Die temporäre Datei %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Cannot create a temporary folder in %1: %2. Set TMPDIR to a folder that you may write to, and restart the studio.</source>
        <translation>In %1 kann kein temporärer Ordner angelegt werden: %2. Setzen Sie TMPDIR auf einen Ordner mit Schreibrecht und starten Sie das Studio neu.</translation>
    </message>
</context>
<context>
    <name>Sign</name>
    <message>
        <source>Your text</source>
        <translation>Ihr Text</translation>
    </message>
</context>
<context>
    <name>Studio</name>
    <message>
        <source>Designs, previews, and exports animated texts for LED signs.</source>
        <translation>Gestaltet bewegte Texte für LED-Schilder, zeigt und exportiert sie.</translation>
    </message>
    <message>
        <source>Plugin library. Default: the one beside this program.</source>
        <translation>Plugin-Bibliothek. Standard: die neben diesem Programm.</translation>
    </message>
    <message>
        <source>Scene to open.</source>
        <translation>Szene, die geöffnet wird.</translation>
    </message>
</context>
<context>
    <name>Times</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
</TS>
