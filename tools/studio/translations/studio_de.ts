<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AnimText::AttributeForm</name>
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
</context>
<context>
    <name>AnimText::DisplayForm</name>
    <message>
        <source>Alpha blending</source>
        <translation>Alpha-Überblendung</translation>
    </message>
    <message>
        <source>Other size</source>
        <translation>Andere Größe</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Pictures of 32 bits with transparency. Without it, pictures of 24 bits: black lets the layers below shine through.</source>
        <translation>Bilder mit 32 Bit und Transparenz. Ohne sie Bilder mit 24 Bit: Schwarz lässt die Ebenen darunter durchscheinen.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Tafel</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
</context>
<context>
    <name>AnimText::DisplayView</name>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>What the sign shows at the current tick</source>
        <translation>Was das Schild beim gewählten Takt zeigt</translation>
    </message>
    <message>
        <source>x %1  y %2  ·  %3 × %4 px</source>
        <translation>x %1  y %2  ·  %3 × %4 px</translation>
    </message>
</context>
<context>
    <name>AnimText::Document</name>
    <message>
        <source>%1 has changed on disk</source>
        <translation>%1 wurde auf der Platte geändert</translation>
    </message>
    <message>
        <source>New sign</source>
        <translation>Neues Schild</translation>
    </message>
    <message>
        <source>Load from disk</source>
        <translation>Von der Platte laden</translation>
    </message>
</context>
<context>
    <name>AnimText::Export</name>
    <message>
        <source>the export has ended before its time</source>
        <translation>der Export endete vor der Zeit</translation>
    </message>
</context>
<context>
    <name>AnimText::ExportDialog</name>
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
        <source>The same as a command</source>
        <translation>Dasselbe als Befehl</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Den Befehl kopieren</translation>
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
        <source>As LEDs: round lamps on black</source>
        <translation>Als LEDs: runde Lampen auf Schwarz</translation>
    </message>
    <message>
        <source>All pages in turn, each for its planned time, as the host plays them</source>
        <translation>Alle Seiten nacheinander, jede für ihre geplante Zeit, wie der Host sie spielt</translation>
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
        <source>Only the studio makes films of lamps.</source>
        <translation>Nur das Studio macht Filme mit Lampen.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
</context>
<context>
    <name>AnimText::FindingsList</name>
    <message>
        <source>Nearest speed</source>
        <translation>Nächste Geschwindigkeit</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Einmal abspielen</translation>
    </message>
    <message>
        <source>No hold</source>
        <translation>Ohne Stand</translation>
    </message>
    <message>
        <source>Entrance effect</source>
        <translation>Auftrittseffekt</translation>
    </message>
    <message>
        <source>Typed effect</source>
        <translation>Getippter Effekt</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Nach links laufen</translation>
    </message>
    <message>
        <source>Move onto the display</source>
        <translation>Auf die Anzeige rücken</translation>
    </message>
    <message>
        <source>Fit the height</source>
        <translation>Der Höhe anpassen</translation>
    </message>
    <message>
        <source>Fit the area</source>
        <translation>Dem Bereich anpassen</translation>
    </message>
    <message>
        <source>First color for all</source>
        <translation>Erste Farbe für alle</translation>
    </message>
    <message>
        <source>Turn dazzle on</source>
        <translation>Farbspiel einschalten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message numerus="yes">
        <source>And %n more</source>
        <translation>
            <numerusform>Und %n weiterer</numerusform>
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
        <source>Make outlines again</source>
        <translation>Umrisse neu erstellen</translation>
    </message>
    <message>
        <source>No problems found</source>
        <translation>Keine Probleme gefunden</translation>
    </message>
</context>
<context>
    <name>AnimText::Inspector</name>
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
        <translation>Platz</translation>
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
    <name>AnimText::IntegratorView</name>
    <message>
        <source>Calls of the device</source>
        <translation>Aufrufe des Geräts</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>call </source>
        <translation>Aufruf </translation>
    </message>
    <message>
        <source>Which of its calls, from the start</source>
        <translation>Der wievielte dieser Aufrufe seit dem Start</translation>
    </message>
    <message>
        <source>Compare with a library…</source>
        <translation>Mit einer Bibliothek vergleichen …</translation>
    </message>
    <message>
        <source>Plays the same with another plugin library and marks the pixels that differ</source>
        <translation>Spielt dasselbe mit einer anderen Plugin-Bibliothek und markiert die Pixel, die sich unterscheiden</translation>
    </message>
    <message>
        <source>Fails: %1</source>
        <translation>Scheitert: %1</translation>
    </message>
    <message>
        <source>No call of the device at tick %1.</source>
        <translation>Kein Aufruf des Geräts bei Takt %1.</translation>
    </message>
    <message>
        <source>No pixel differs</source>
        <translation>Kein Pixel ist anders</translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s) differ</source>
        <translation>
            <numerusform>%n Pixel ist anders</numerusform>
            <numerusform>%n Pixel sind anders</numerusform>
        </translation>
    </message>
    <message>
        <source>Another plugin library</source>
        <translation>Eine andere Plugin-Bibliothek</translation>
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
        <source>Plays again from the start, and that call of the device fails</source>
        <translation>Spielt noch einmal von vorn, und dieser Aufruf des Geräts schlägt fehl</translation>
    </message>
    <message>
        <source>Clear failures</source>
        <translation>Fehler aufheben</translation>
    </message>
    <message>
        <source>Lets every call succeed again</source>
        <translation>Lässt jeden Aufruf wieder gelingen</translation>
    </message>
    <message>
        <source>Stop comparing</source>
        <translation>Vergleich beenden</translation>
    </message>
</context>
<context>
    <name>AnimText::LayoutForm</name>
    <message>
        <source>Left</source>
        <translation>Links</translation>
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
        <source>Top</source>
        <translation>Oben</translation>
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
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>A text that scrolls has no pages.</source>
        <translation>Ein Text, der läuft, hat keine Seiten.</translation>
    </message>
    <message>
        <source>Break pages between words</source>
        <translation>Seiten zwischen Wörtern umbrechen</translation>
    </message>
    <message>
        <source>Reading start</source>
        <translation>Leseanfang</translation>
    </message>
    <message>
        <source>Sizes as set</source>
        <translation>Größen wie gesetzt</translation>
    </message>
    <message>
        <source>Fit the height</source>
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
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>A text that scrolls sideways is not aligned.</source>
        <translation>Ein seitlich laufender Text wird nicht ausgerichtet.</translation>
    </message>
</context>
<context>
    <name>AnimText::LedsDialog</name>
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
        <source>Every second row or column runs backwards</source>
        <translation>Jede zweite Zeile oder Spalte läuft rückwärts</translation>
    </message>
    <message>
        <source>Corners, order of the LEDs, colors and levels, each for five seconds</source>
        <translation>Ecken, Reihenfolge der LEDs, Farben und Helligkeiten, je fünf Sekunden</translation>
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
        <source>LEDs follow</source>
        <translation>LEDs folgen auf</translation>
    </message>
    <message>
        <source>First LED</source>
        <translation>Erste LED</translation>
    </message>
    <message>
        <source>Picture turned by</source>
        <translation>Bild gedreht um</translation>
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
        <source>The way of the data line, seen from the front</source>
        <translation>Der Weg der Datenleitung, von vorn gesehen</translation>
    </message>
    <message>
        <source>The same as a command</source>
        <translation>Dasselbe als Befehl</translation>
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
        <source>Sends to the multicast groups of E1.31.</source>
        <translation>Sendet an die Multicast-Gruppen von E1.31.</translation>
    </message>
    <message>
        <source>Looking for %1 …</source>
        <translation>%1 wird gesucht …</translation>
    </message>
    <message>
        <source>%1 cannot be found: %2</source>
        <translation>%1 ist nicht zu finden: %2</translation>
    </message>
    <message>
        <source>The LEDs show what the studio shows.</source>
        <translation>Die LEDs zeigen, was das Studio zeigt.</translation>
    </message>
</context>
<context>
    <name>AnimText::MainWindow</name>
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
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
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
        <translation>&amp;Rückgängig:</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen:</translation>
    </message>
    <message>
        <source>Add &amp;text</source>
        <translation>&amp;Text hinzufügen</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>Add &amp;page</source>
        <translation>Seite &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+T</source>
        <translation>Ctrl+Shift+T</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>&amp;Schreiben</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Search &amp;motions</source>
        <translation>&amp;Bewegungen suchen</translation>
    </message>
    <message>
        <source>Ctrl+M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
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
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Shows the pixels as round lamps (Ctrl+L)</source>
        <translation>Zeigt die Pixel als runde Lampen (Strg+L)</translation>
    </message>
    <message>
        <source>&amp;Pitch of the LEDs</source>
        <translation>&amp;Abstand der LEDs</translation>
    </message>
    <message>
        <source>%1 diameters</source>
        <translation>%1 Durchmesser</translation>
    </message>
    <message>
        <source>&amp;Chequered beneath</source>
        <translation>&amp;Karos darunter</translation>
    </message>
    <message>
        <source>Frames of all &amp;areas</source>
        <translation>&amp;Rahmen aller Bereiche</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>%1 ×</source>
        <translation>%1 ×</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>A&amp;bspielen</translation>
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
        <source>&amp;Backwards, then faster</source>
        <translation>&amp;Rückwärts, dann schneller</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>&amp;Forwards, then faster</source>
        <translation>&amp;Vorwärts, dann schneller</translation>
    </message>
    <message>
        <source>One tick back</source>
        <translation>Einen Takt zurück</translation>
    </message>
    <message>
        <source>One tick on</source>
        <translation>Einen Takt weiter</translation>
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
        <source>Ten ticks on</source>
        <translation>Zehn Takte weiter</translation>
    </message>
    <message>
        <source>Shift+→</source>
        <translation>Umschalt+→</translation>
    </message>
    <message>
        <source>Previous page mark</source>
        <translation>Vorige Seitenmarke</translation>
    </message>
    <message>
        <source>Next page mark</source>
        <translation>Nächste Seitenmarke</translation>
    </message>
    <message>
        <source>To the start</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Zum Ende</translation>
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
        <source>&lt;b&gt;Animated Text Studio %1&lt;/b&gt;&lt;p&gt;What is seen here is what the plugin paints: the same library, the same pixels as on the sign.</source>
        <translation>&lt;b&gt;Animated Text Studio %1&lt;/b&gt;&lt;p&gt;Was hier zu sehen ist, malt das Plugin: dieselbe Bibliothek, dieselben Pixel wie auf dem Schild.</translation>
    </message>
    <message>
        <source>Open a scene</source>
        <translation>Eine Szene öffnen</translation>
    </message>
    <message>
        <source>Scenes (*.json)</source>
        <translation>Szenen (*.json)</translation>
    </message>
    <message>
        <source>Save the scene</source>
        <translation>Die Szene speichern</translation>
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
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>No findings</source>
        <translation>Keine Befunde</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s)</source>
        <translation>
            <numerusform>%n Befund</numerusform>
            <numerusform>%n Befunde</numerusform>
        </translation>
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
        <translation>%1 wurde auf der Platte geändert.</translation>
    </message>
    <message>
        <source>Load it</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Meine Fassung behalten</translation>
    </message>
    <message>
        <source>Save mine as…</source>
        <translation>Meine Fassung speichern unter …</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>a new sign</source>
        <translation>ein neues Schild</translation>
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
        <translation>Text verdoppeln</translation>
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
        <translation>Mit &amp;Stilen einfügen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>Ctrl+Space</source>
        <translation>Ctrl+Space</translation>
    </message>
    <message>
        <source>&amp;Loop the page, or stop looping</source>
        <translation>Seite in &amp;Schleife spielen oder damit aufhören</translation>
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
        <source>&amp;Rulers</source>
        <translation>&amp;Lineale</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Zoom (Ctrl+wheel, Ctrl+0, Ctrl++, Ctrl+-)</source>
        <translation>Zoom (Strg+Mausrad, Ctrl+0, Ctrl++, Ctrl+-)</translation>
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
        <source>Earlier</source>
        <translation>Früher</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>To the front</source>
        <translation>Nach vorn</translation>
    </message>
    <message>
        <source>To the back</source>
        <translation>Nach hinten</translation>
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
        <source>Program: %1</source>
        <translation>Programm: %1</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>Text: %1</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Was sie tut</translation>
    </message>
    <message>
        <source>Display and fields</source>
        <translation>Anzeige und Felder</translation>
    </message>
    <message>
        <source>Plays or stops, from any field</source>
        <translation>Spielt oder hält an, aus jedem Feld</translation>
    </message>
    <message>
        <source>Alt+arrows</source>
        <translation>Alt+Pfeile</translation>
    </message>
    <message>
        <source>Move the area; with Shift its size, with Ctrl by ten pixels</source>
        <translation>Verschieben den Bereich; mit Umschalt seine Größe, mit Strg um zehn Pixel</translation>
    </message>
    <message>
        <source>Ctrl+wheel</source>
        <translation>Strg+Mausrad</translation>
    </message>
    <message>
        <source>Zooms the display or the timeline</source>
        <translation>Zoomt die Anzeige oder die Zeitleiste</translation>
    </message>
    <message>
        <source>Space+drag, middle button</source>
        <translation>Leertaste+Ziehen, mittlere Taste</translation>
    </message>
    <message>
        <source>Pans the display</source>
        <translation>Verschiebt die Anzeige</translation>
    </message>
    <message>
        <source>Ctrl while dragging</source>
        <translation>Strg beim Ziehen</translation>
    </message>
    <message>
        <source>Areas do not snap</source>
        <translation>Bereiche rasten nicht ein</translation>
    </message>
    <message>
        <source>Shift+drag</source>
        <translation>Umschalt+Ziehen</translation>
    </message>
    <message>
        <source>Over the timeline: loops a range; over a number: steps by ten</source>
        <translation>Über der Zeitleiste: spielt einen Bereich in Schleife; über einer Zahl: Zehnerschritte</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Leaves a field; on the display: selects no text</source>
        <translation>Verlässt ein Feld; auf der Anzeige: wählt keinen Text</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>In a number: back to the display</source>
        <translation>In einer Zahl: zurück zur Anzeige</translation>
    </message>
    <message>
        <source>%1 has unsaved changes.</source>
        <translation>%1 hat ungespeicherte Änderungen.</translation>
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
        <translation>Keine letzten Szenen</translation>
    </message>
    <message>
        <source>The studio stopped before %1 was saved (%2).</source>
        <translation>Das Studio endete, bevor %1 gespeichert war (%2).</translation>
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
        <translation>Auf L&amp;EDs abspielen…</translation>
    </message>
</context>
<context>
    <name>AnimText::MotionPicker</name>
    <message>
        <source>Search motions</source>
        <translation>Bewegungen suchen</translation>
    </message>
    <message>
        <source>All families</source>
        <translation>Alle Familien</translation>
    </message>
    <message>
        <source>Family of motions</source>
        <translation>Familie von Bewegungen</translation>
    </message>
    <message>
        <source>Motions</source>
        <translation>Bewegungen</translation>
    </message>
    <message>
        <source>Drag to make the list higher or lower</source>
        <translation>Ziehen, um die Liste höher oder niedriger zu machen</translation>
    </message>
</context>
<context>
    <name>AnimText::NeonBox</name>
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
    <name>AnimText::NewDialog</name>
    <message>
        <source>New sign</source>
        <translation>Neues Schild</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
</context>
<context>
    <name>AnimText::NoticeBar</name>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>AnimText::SceneList</name>
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
    <name>AnimText::TextEditor</name>
    <message>
        <source>Paste with styles</source>
        <translation>Mit Stilen einfügen</translation>
    </message>
</context>
<context>
    <name>AnimText::TextPanel</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Type the text</source>
        <translation>Den Text tippen</translation>
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
        <source>Size of the letters in pixels of the sign</source>
        <translation>Größe der Zeichen in Pixeln des Schilds</translation>
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
        <source>Letters are cut: %1 px above, %2 px below.</source>
        <translation>Zeichen sind abgeschnitten: oben %1 px, unten %2 px.</translation>
    </message>
    <message>
        <source>The sign paints every character in the color of the first.</source>
        <translation>Das Schild malt jedes Zeichen in der Farbe des ersten.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Use another font for them</source>
        <translation>Andere Schrift dafür nehmen</translation>
    </message>
    <message>
        <source>No installed font has them.</source>
        <translation>Keine installierte Schrift hat sie.</translation>
    </message>
    <message>
        <source>Will be missing: neither %1 nor any other installed font has it.</source>
        <translation>Wird fehlen: weder %1 noch eine andere installierte Schrift hat es.</translation>
    </message>
    <message>
        <source>Will be missing: its font has a picture instead of an outline (%1 was set).</source>
        <translation>Wird fehlen: seine Schrift hat ein Bild statt eines Umrisses (%1 war gesetzt).</translation>
    </message>
    <message>
        <source>Not in any font, will be missing: %1</source>
        <translation>In keiner Schrift, wird fehlen: %1</translation>
    </message>
    <message>
        <source>Wider than a page, will be broken: %1</source>
        <translation>Breiter als eine Seite, wird zerteilt: %1</translation>
    </message>
    <message>
        <source>Color of the selection: %1</source>
        <translation>Farbe der Auswahl: %1</translation>
    </message>
</context>
<context>
    <name>AnimText::Thumbnails</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>AnimText::Timeline</name>
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
        <source>enters</source>
        <translation>tritt ein</translation>
    </message>
    <message>
        <source>holds</source>
        <translation>hält</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>abgeschnitten</translation>
    </message>
    <message>
        <source>Click or drag to go to a moment; Shift+drag loops a range; Ctrl+wheel zooms.</source>
        <translation>Klicken oder ziehen, um zu einem Zeitpunkt zu gehen; Umschalt+Ziehen spielt einen Bereich in Schleife; Strg+Mausrad zoomt.</translation>
    </message>
    <message>
        <source>Page %1 holds for %2</source>
        <translation>Seite %1 hält %2 lang</translation>
    </message>
    <message>
        <source>Page %1 enters for %2</source>
        <translation>Seite %1 tritt %2 lang ein</translation>
    </message>
    <message>
        <source>Planned: %1</source>
        <translation>Geplant: %1</translation>
    </message>
    <message>
        <source>Needs: %1</source>
        <translation>Braucht: %1</translation>
    </message>
</context>
<context>
    <name>AnimText::TransportBar</name>
    <message>
        <source>To the start</source>
        <translation>Zum Anfang</translation>
    </message>
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
        <source>One tick on</source>
        <translation>Einen Takt weiter</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Zum Ende</translation>
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
        <source>What is played</source>
        <translation>Was gespielt wird</translation>
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
        <source>nothing to play</source>
        <translation>nichts zu spielen</translation>
    </message>
    <message>
        <source>Loop the page; Shift+drag over the timeline loops a range</source>
        <translation>Seite in Schleife spielen; Umschalt+Ziehen über die Zeitleiste für einen Bereich</translation>
    </message>
    <message>
        <source>This page: all its texts, for as long as they need.
All pages: in turn, each for its planned time, as the host plays them.</source>
        <translation>Diese Seite: alle ihre Texte, so lange sie brauchen.
Alle Seiten: nacheinander, jede für ihre geplante Zeit, wie der Host sie spielt.</translation>
    </message>
    <message>
        <source>planned %1 · needs longer than can be shown</source>
        <translation>geplant %1 · braucht länger, als gezeigt werden kann</translation>
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
        <source> · %1 longer on the sign</source>
        <translation> · steht %1 länger</translation>
    </message>
</context>
<context>
    <name>AnimText::WorkerLink</name>
    <message>
        <source>The plugin answered no more and was ended.</source>
        <translation>Das Plugin antwortete nicht mehr und wurde beendet.</translation>
    </message>
    <message>
        <source>The plugin crashed.</source>
        <translation>Das Plugin ist abgestürzt.</translation>
    </message>
    <message>
        <source>The worker has ended.</source>
        <translation>Der Arbeitsprozess ist zu Ende.</translation>
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
        <source>authoring tools; on the sign the outlines decide</source>
        <translation>Werkzeuge zum Schreiben; auf dem Schild entscheiden die Umrisse</translation>
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
        <source>The text scrolls; only entrance effects heed this.</source>
        <translation>Der Text läuft; nur Auftrittseffekte beachten dies.</translation>
    </message>
    <message>
        <source>The text comes in by an entrance effect; only scrolling heeds this.</source>
        <translation>Der Text kommt mit einem Auftrittseffekt; nur laufender Text beachtet dies.</translation>
    </message>
    <message>
        <source>Gradients and pictures belong to the dazzle background, which is off; the text keeps its color.</source>
        <translation>Verläufe und Bilder gehören zum Farbspiel-Hintergrund, der aus ist; der Text behält seine Farbe.</translation>
    </message>
    <message>
        <source>The dazzle background shows no gradient.</source>
        <translation>Der Farbspiel-Hintergrund zeigt keinen Verlauf.</translation>
    </message>
    <message>
        <source>The dazzle background shows no picture.</source>
        <translation>Der Farbspiel-Hintergrund zeigt kein Bild.</translation>
    </message>
    <message>
        <source>The neon background is off.</source>
        <translation>Der Neon-Hintergrund ist aus.</translation>
    </message>
    <message>
        <source>The neon background shows a picture only with a style above 28.</source>
        <translation>Der Neon-Hintergrund zeigt ein Bild nur mit einem Stil über 28.</translation>
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
        <source>characters are outlined, with nothing inside</source>
        <translation>Zeichen sind umrandet, mit nichts darin</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>the family that the outline was made from</source>
        <translation>die Familie, aus der der Umriss gemacht wurde</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>the size that the outline was made in</source>
        <translation>die Größe, in der der Umriss gemacht wurde</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>the outline was made bold</source>
        <translation>der Umriss wurde fett gemacht</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>the outline was made slanted</source>
        <translation>der Umriss wurde schräg gemacht</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>the outline has a bar under it</source>
        <translation>der Umriss hat einen Strich unter sich</translation>
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
        <source>how far the next character stands to the right</source>
        <translation>wie weit rechts das nächste Zeichen steht</translation>
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
        <translation>Rand</translation>
    </message>
    <message>
        <source>asks for an outline in a color of its own</source>
        <translation>verlangt einen Umriss in eigener Farbe</translation>
    </message>
    <message>
        <source>Stroke color</source>
        <translation>Randfarbe</translation>
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
        <source>asks for a shadow</source>
        <translation>verlangt einen Schatten</translation>
    </message>
    <message>
        <source>Kind of shadow</source>
        <translation>Art des Schattens</translation>
    </message>
    <message>
        <source>how the shadow would be</source>
        <translation>wie der Schatten wäre</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>how the text comes to be seen</source>
        <translation>wie der Text zu sehen kommt</translation>
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
        <source>the speed of the entrance effect, 9 the fastest</source>
        <translation>das Tempo des Auftrittseffekts, 9 ist das schnellste</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>where the text scrolls to</source>
        <translation>wohin der Text läuft</translation>
    </message>
    <message>
        <source>Scroll speed</source>
        <translation>Lauftempo</translation>
    </message>
    <message>
        <source>the speed of scrolling, 9 the fastest</source>
        <translation>das Tempo des laufenden Textes, 9 ist das schnellste</translation>
    </message>
    <message>
        <source>how often the whole text is shown</source>
        <translation>wie oft der ganze Text gezeigt wird</translation>
    </message>
    <message>
        <source>how long each page stands still once it has come in</source>
        <translation>wie lange jede Seite steht, wenn sie da ist</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>which plugin shows it</source>
        <translation>welches Plugin ihn zeigt</translation>
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
        <source>colors travel behind the text</source>
        <translation>Farben ziehen hinter dem Text</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>the colors flow into one another</source>
        <translation>die Farben fließen ineinander</translation>
    </message>
    <message>
        <source>Kind of gradient</source>
        <translation>Art des Verlaufs</translation>
    </message>
    <message>
        <source>which way the colors flow</source>
        <translation>wie die Farben fließen</translation>
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
        <source>the style of the lights: up to 28 borders that are drawn, above them a picture</source>
        <translation>der Stil der Lichter: bis 28 gezeichnete Ränder, darüber ein Bild</translation>
    </message>
    <message>
        <source>Neon picture</source>
        <translation>Neonbild</translation>
    </message>
    <message>
        <source>the moving picture of the neon background</source>
        <translation>das bewegte Bild des Neon-Hintergrunds</translation>
    </message>
    <message>
        <source>entrance effect</source>
        <translation>Auftrittseffekt</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>up</source>
        <translation>hinauf</translation>
    </message>
    <message>
        <source>down</source>
        <translation>hinunter</translation>
    </message>
    <message>
        <source>linear</source>
        <translation>gerade</translation>
    </message>
    <message>
        <source>radial</source>
        <translation>rund</translation>
    </message>
    <message>
        <source>conical</source>
        <translation>kegelförmig</translation>
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
        <source>Pause</source>
        <translation>Pause</translation>
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
    <name>Motions</name>
    <message>
        <source>fly-in</source>
        <translation>Einfliegen</translation>
    </message>
    <message>
        <source>word by word</source>
        <translation>Zeichen um Zeichen</translation>
    </message>
    <message>
        <source>oscillating</source>
        <translation>Schwingen</translation>
    </message>
    <message>
        <source>rotation and flip</source>
        <translation>Drehen und Kippen</translation>
    </message>
    <message>
        <source>in turn</source>
        <translation>Der Reihe nach</translation>
    </message>
    <message>
        <source>stretch and move</source>
        <translation>Dehnen und Ziehen</translation>
    </message>
    <message>
        <source>text zoom</source>
        <translation>Text-Zoom</translation>
    </message>
    <message>
        <source>frogs</source>
        <translation>Frösche</translation>
    </message>
    <message>
        <source>scroll</source>
        <translation>Laufen</translation>
    </message>
    <message>
        <source>characters fly in one by one, each from the right edge leftwards to its place</source>
        <translation>Zeichen fliegen einzeln ein, jedes vom rechten Rand nach links an seinen Platz</translation>
    </message>
    <message>
        <source>the last character first, each flies from the left edge rightwards; pages end at the right edge</source>
        <translation>das letzte Zeichen zuerst, jedes fliegt vom linken Rand nach rechts; Seiten enden am rechten Rand</translation>
    </message>
    <message>
        <source>characters rise one by one from below the bottom edge to their places</source>
        <translation>Zeichen steigen einzeln von unter dem unteren Rand an ihre Plätze</translation>
    </message>
    <message>
        <source>characters drop one by one from the top edge to their places</source>
        <translation>Zeichen fallen einzeln vom oberen Rand an ihre Plätze</translation>
    </message>
    <message>
        <source>characters appear whole, one after another, as if typed</source>
        <translation>Zeichen erscheinen ganz, eines nach dem anderen, wie getippt</translation>
    </message>
    <message>
        <source>a wave travels to the right through the row, from edge to edge of the area</source>
        <translation>eine Welle läuft nach rechts durch die Reihe, von Rand zu Rand des Bereichs</translation>
    </message>
    <message>
        <source>the whole row sways sideways and leans as it goes</source>
        <translation>die ganze Reihe schwankt seitwärts und neigt sich dabei</translation>
    </message>
    <message>
        <source>every character pulses from its own size to half as large again</source>
        <translation>jedes Zeichen pulst von seiner Größe auf das Anderthalbfache</translation>
    </message>
    <message>
        <source>every character jitters at random by a few pixels, 61 frames a page</source>
        <translation>jedes Zeichen zittert zufällig um einige Pixel, 61 Bilder je Seite</translation>
    </message>
    <message>
        <source>characters grow out of nothing at their places, one after another</source>
        <translation>Zeichen wachsen an ihren Plätzen aus dem Nichts, eines nach dem anderen</translation>
    </message>
    <message>
        <source>characters appear at double size and shrink to their own, one after another</source>
        <translation>Zeichen erscheinen doppelt so groß und schrumpfen auf ihre Größe, eines nach dem anderen</translation>
    </message>
    <message>
        <source>every character turns once clockwise about its middle</source>
        <translation>jedes Zeichen dreht sich einmal im Uhrzeigersinn um seine Mitte</translation>
    </message>
    <message>
        <source>the row rolls in from the right edge, each character spinning anticlockwise</source>
        <translation>die Reihe rollt vom rechten Rand herein, jedes Zeichen gegen den Uhrzeigersinn kreisend</translation>
    </message>
    <message>
        <source>every character turns once clockwise about the middle of its baseline</source>
        <translation>jedes Zeichen dreht sich einmal im Uhrzeigersinn um die Mitte seiner Grundlinie</translation>
    </message>
    <message>
        <source>characters stand on their heads and flip upright over the baseline, one after another</source>
        <translation>Zeichen stehen auf dem Kopf und kippen über die Grundlinie auf, eines nach dem anderen</translation>
    </message>
    <message>
        <source>characters swell upwards and sink to nothing in turn, like a wave through grass</source>
        <translation>Zeichen schwellen der Reihe nach auf und sinken ins Nichts, wie eine Welle durch Gras</translation>
    </message>
    <message>
        <source>characters drop from the top edge, each a little after its left neighbour</source>
        <translation>Zeichen fallen vom oberen Rand, jedes ein wenig nach seinem linken Nachbarn</translation>
    </message>
    <message>
        <source>characters drop tilted by 45 degrees, bounce once and settle upright, in turn</source>
        <translation>Zeichen fallen um 45 Grad geneigt, prallen einmal ab und richten sich auf, der Reihe nach</translation>
    </message>
    <message>
        <source>characters come in turn from the top of the right edge on slanted paths, widening from nothing</source>
        <translation>Zeichen kommen der Reihe nach oben vom rechten Rand auf schrägen Bahnen und werden aus dem Nichts breiter</translation>
    </message>
    <message>
        <source>a frog hops along the top edge, and under it each character appears from its top downward</source>
        <translation>ein Frosch hüpft am oberen Rand entlang, und unter ihm erscheint jedes Zeichen von oben nach unten</translation>
    </message>
    <message>
        <source>a frog hops along the top edge, and each character falls from there in five steps</source>
        <translation>ein Frosch hüpft am oberen Rand entlang, und jedes Zeichen fällt von dort in fünf Schritten</translation>
    </message>
    <message>
        <source>every character widens to the right from nothing to its full width</source>
        <translation>jedes Zeichen wird nach rechts aus dem Nichts zu seiner vollen Breite</translation>
    </message>
    <message>
        <source>characters slide in turn from the top of the right edge on slanted paths</source>
        <translation>Zeichen gleiten der Reihe nach oben vom rechten Rand auf schrägen Bahnen herein</translation>
    </message>
    <message>
        <source>every character climbs from the bottom edge to the top again and again, the right one ahead</source>
        <translation>jedes Zeichen klettert immer wieder vom unteren Rand zum oberen, das rechte voran</translation>
    </message>
    <message>
        <source>characters grow in pairs from both ends of the page to its middle, twice</source>
        <translation>Zeichen wachsen paarweise von beiden Enden der Seite zur Mitte, zweimal</translation>
    </message>
    <message>
        <source>the row turns round a vertical axis in its middle, away and back</source>
        <translation>die Reihe dreht sich um eine senkrechte Achse in ihrer Mitte, fort und zurück</translation>
    </message>
    <message>
        <source>the row gathers from five times its width while slanted characters narrow and widen</source>
        <translation>die Reihe sammelt sich aus ihrer fünffachen Breite, während schräge Zeichen schmal und breit werden</translation>
    </message>
    <message>
        <source>the row gathers from five times its width while characters turn once anticlockwise</source>
        <translation>die Reihe sammelt sich aus ihrer fünffachen Breite, während Zeichen sich einmal gegen den Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>the page pulses in and out of nothing about its middle, two and a half times</source>
        <translation>die Seite pulst um ihre Mitte ins Nichts und zurück, zweieinhalbmal</translation>
    </message>
    <message>
        <source>every character rocks by up to 45 degrees, on one foot and then on the other</source>
        <translation>jedes Zeichen wippt um bis zu 45 Grad, auf einem Fuß und dann auf dem anderen</translation>
    </message>
    <message>
        <source>the line enters at the right edge and leaves at the left, moved by the device</source>
        <translation>die Zeile kommt am rechten Rand und geht am linken, vom Gerät bewegt</translation>
    </message>
    <message>
        <source>the line enters at the left edge and leaves at the right, moved by the device</source>
        <translation>die Zeile kommt am linken Rand und geht am rechten, vom Gerät bewegt</translation>
    </message>
    <message>
        <source>the characters, one above another, rise from the bottom edge without end</source>
        <translation>die Zeichen, eines über dem anderen, steigen ohne Ende vom unteren Rand</translation>
    </message>
    <message>
        <source>the characters, one above another, sink from the top edge without end</source>
        <translation>die Zeichen, eines über dem anderen, sinken ohne Ende vom oberen Rand</translation>
    </message>
    <message>
        <source>Fly to the left</source>
        <translation>Nach links fliegen</translation>
    </message>
    <message>
        <source>Fly to the right</source>
        <translation>Nach rechts fliegen</translation>
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
        <source>Shrink one by one</source>
        <translation>Einzeln schrumpfen</translation>
    </message>
    <message>
        <source>Spin about the middle</source>
        <translation>Um die Mitte drehen</translation>
    </message>
    <message>
        <source>Roll in</source>
        <translation>Hereinrollen</translation>
    </message>
    <message>
        <source>Spin about the baseline</source>
        <translation>Um die Grundlinie drehen</translation>
    </message>
    <message>
        <source>Flip upright</source>
        <translation>Aufrecht klappen</translation>
    </message>
    <message>
        <source>Swell in turn</source>
        <translation>Reihum anschwellen</translation>
    </message>
    <message>
        <source>Drop in turn</source>
        <translation>Reihum fallen</translation>
    </message>
    <message>
        <source>Drop and bounce</source>
        <translation>Fallen und abprallen</translation>
    </message>
    <message>
        <source>Widen along a slant</source>
        <translation>Schräg breiter werden</translation>
    </message>
    <message>
        <source>Frog uncovers</source>
        <translation>Frosch deckt auf</translation>
    </message>
    <message>
        <source>Frog drops</source>
        <translation>Frosch lässt fallen</translation>
    </message>
    <message>
        <source>Widen to the right</source>
        <translation>Nach rechts breiter werden</translation>
    </message>
    <message>
        <source>Slide along a slant</source>
        <translation>Schräg gleiten</translation>
    </message>
    <message>
        <source>Climb again and again</source>
        <translation>Immer wieder klettern</translation>
    </message>
    <message>
        <source>Grow from both ends</source>
        <translation>Von beiden Enden wachsen</translation>
    </message>
    <message>
        <source>Turn the row</source>
        <translation>Zeile drehen</translation>
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
        <source>Pulse the page</source>
        <translation>Seite pulsieren</translation>
    </message>
    <message>
        <source>Rock</source>
        <translation>Schaukeln</translation>
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
</context>
<context>
    <name>Rules</name>
    <message>
        <source>No tool can play it.</source>
        <translation>Kein Werkzeug kann es abspielen.</translation>
    </message>
    <message>
        <source>The display stays dark.</source>
        <translation>Die Anzeige bleibt dunkel.</translation>
    </message>
    <message>
        <source>The host has no plugin for it and leaves it out.</source>
        <translation>Der Host hat kein Plugin dafür und lässt es aus.</translation>
    </message>
    <message>
        <source>Nothing can be painted.</source>
        <translation>Nichts kann gemalt werden.</translation>
    </message>
    <message>
        <source>What lies outside the display is not seen.</source>
        <translation>Was außerhalb der Anzeige liegt, ist nicht zu sehen.</translation>
    </message>
    <message>
        <source>The engine paints nothing into a picture above its limit.</source>
        <translation>Über seiner Grenze malt das Plugin in kein Bild.</translation>
    </message>
    <message>
        <source>The renderer answers that there is nothing to play.</source>
        <translation>Der Renderer antwortet, dass es nichts zu spielen gibt.</translation>
    </message>
    <message>
        <source>One empty frame is shown, for ever.</source>
        <translation>Ein leeres Bild wird gezeigt, für immer.</translation>
    </message>
    <message>
        <source>Empty frames are shown and the item never ends.</source>
        <translation>Leere Bilder werden gezeigt, und der Eintrag endet nie.</translation>
    </message>
    <message>
        <source>The motion is timed for speeds 0 to 9; others stall or leap.</source>
        <translation>Die Bewegung ist auf die Tempi 0 bis 9 abgestimmt; andere stocken oder springen.</translation>
    </message>
    <message>
        <source>The item counts as finished with its first frame.</source>
        <translation>Der Eintrag gilt mit seinem ersten Bild als fertig.</translation>
    </message>
    <message>
        <source>Pages are not held at all.</source>
        <translation>Seiten stehen gar nicht.</translation>
    </message>
    <message>
        <source>Only 1 is on; the layers are stacked as if it were on all the same.</source>
        <translation>Nur 1 ist an; die Ebenen liegen trotzdem, als wäre es an.</translation>
    </message>
    <message>
        <source>Characters without a row are 0 pixels wide and high, or red.</source>
        <translation>Zeichen ohne Zeile sind 0 Pixel breit und hoch, oder rot.</translation>
    </message>
    <message>
        <source>Rows beyond the text count in its width and in the largest character.</source>
        <translation>Zeilen jenseits des Textes zählen in seiner Breite und im größten Zeichen mit.</translation>
    </message>
    <message>
        <source>What is no number counts as 0, and characters lie on one another.</source>
        <translation>Was keine Zahl ist, zählt als 0, und Zeichen liegen aufeinander.</translation>
    </message>
    <message>
        <source>Without outlines nothing is seen; without descents lines sink.</source>
        <translation>Ohne Umrisse ist nichts zu sehen; ohne Unterlängen sinken Zeilen.</translation>
    </message>
    <message>
        <source>The background stays without its picture.</source>
        <translation>Der Hintergrund bleibt ohne sein Bild.</translation>
    </message>
    <message>
        <source>The sign refuses the whole file and reads nothing from it.</source>
        <translation>Das Schild weist die ganze Datei ab und liest nichts daraus.</translation>
    </message>
    <message>
        <source>The sign refuses the outline; the character stays away.</source>
        <translation>Das Schild weist den Umriss ab; das Zeichen bleibt weg.</translation>
    </message>
    <message>
        <source>Characters without an outline stay away; without a descent they sink.</source>
        <translation>Zeichen ohne Umriss bleiben weg; ohne Unterlänge sinken sie.</translation>
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
        <source>The character gets a page of its own and is cut off.</source>
        <translation>Das Zeichen bekommt eine eigene Seite und wird abgeschnitten.</translation>
    </message>
    <message>
        <source>Beyond 31,999 pixels the painter needs a second picture, and it paints that one white.</source>
        <translation>Jenseits von 31.999 Pixeln braucht der Maler ein zweites Bild, und das malt er weiß.</translation>
    </message>
    <message>
        <source>Gradients belong to the dazzle background; the text keeps its colour.</source>
        <translation>Verläufe gehören zum Farbspiel-Hintergrund; der Text behält seine Farbe.</translation>
    </message>
    <message>
        <source>Pictures belong to the dazzle background; the text keeps its colour.</source>
        <translation>Bilder gehören zum Farbspiel-Hintergrund; der Text behält seine Farbe.</translation>
    </message>
    <message>
        <source>Text is outlined in its own colour.</source>
        <translation>Text wird in seiner eigenen Farbe umrandet.</translation>
    </message>
    <message>
        <source>Text is painted without shadows.</source>
        <translation>Text wird ohne Schatten gemalt.</translation>
    </message>
    <message>
        <source>The whole text has the colour of its first character.</source>
        <translation>Der ganze Text hat die Farbe seines ersten Zeichens.</translation>
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
        <source>The sign takes the lowest 24 bits and shows another color.</source>
        <translation>Die Anzeige nimmt die untersten 24 Bit und zeigt eine andere Farbe.</translation>
    </message>
</context>
<context>
    <name>SceneFolder</name>
    <message>
        <source>Temporary file %1 cannot be written: %2.</source>
        <translation>Die temporäre Datei %1 lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>No temporary folder can be made in %1: %2. Set TMPDIR to a folder that you may write to, and start the studio again.</source>
        <translation>In %1 lässt sich kein temporärer Ordner anlegen: %2. Setzen Sie TMPDIR auf einen Ordner, in den Sie schreiben dürfen, und starten Sie das Studio neu.</translation>
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
        <source>A window in which animated texts are written, timed and exported.</source>
        <translation>Ein Fenster, in dem bewegte Texte geschrieben, getaktet und exportiert werden.</translation>
    </message>
    <message>
        <source>The plugin library, in place of the one beside this program.</source>
        <translation>Die Plugin-Bibliothek anstelle der neben diesem Programm.</translation>
    </message>
    <message>
        <source>The scene to open.</source>
        <translation>Die Szene, die geöffnet wird.</translation>
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
