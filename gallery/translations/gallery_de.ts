<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>%1 - Arbor Gallery</source>
        <translation>%1 - Arbor Galerie</translation>
    </message>
    <message>
        <source>Main bar</source>
        <translation>Hauptleiste</translation>
    </message>
    <message>
        <source>Text bar</source>
        <translation>Textleiste</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Offscreen</source>
        <translation>Ohne Fenster</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressourcen</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Skalieren</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Regler</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listen</translation>
    </message>
</context>
<context>
    <name>PageSwitcher</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>PageErrors</name>
    <message>
        <source>This page cannot be shown</source>
        <translation>Diese Seite kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>Save the file again: the page comes back as soon as it loads.</source>
        <translation>Speichern Sie die Datei erneut: die Seite kommt wieder, sobald sie sich laden lässt.</translation>
    </message>
</context>
<context>
    <name>PicturePage</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>OffscreenPage</name>
    <message>
        <source>A scene without a window</source>
        <translation>Eine Szene ohne Fenster</translation>
    </message>
    <message>
        <source>The scene below never gets a window. It is drawn into memory, a few milliseconds after it changes, and each frame is taken as a picture.</source>
        <translation>Die Szene unten bekommt nie ein Fenster. Sie wird wenige Millisekunden nach einer Änderung in den Speicher gezeichnet, und jeder Durchgang wird als Bild übernommen.</translation>
    </message>
    <message>
        <source>The scene</source>
        <translation>Die Szene</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Durchgänge</translation>
    </message>
</context>
<context>
    <name>ColoursPage</name>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>One colour as text, by its hue, and as a number in the layouts that programs pass around. Change it anywhere: everything else follows.</source>
        <translation>Eine Farbe als Text, nach ihrem Farbton und als Zahl in den Anordnungen, die Programme untereinander weitergeben. Ändern Sie sie, wo Sie wollen: alles andere folgt.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Pastel</source>
        <translation>Pastell</translation>
    </message>
    <message>
        <source>Complement</source>
        <translation>Gegenfarbe</translation>
    </message>
    <message>
        <source>As text</source>
        <translation>Als Text</translation>
    </message>
    <message>
        <source>Hue, saturation, lightness</source>
        <translation>Farbton, Sättigung, Helligkeit</translation>
    </message>
    <message>
        <source>Hue, saturation, value</source>
        <translation>Farbton, Sättigung, Hellwert</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hellwert</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Packed into numbers</source>
        <translation>In Zahlen gepackt</translation>
    </message>
    <message>
        <source>Colour reference</source>
        <translation>Farbreferenz</translation>
    </message>
    <message>
        <source>RGB number</source>
        <translation>RGB-Zahl</translation>
    </message>
</context>
<context>
    <name>SlidersPage</name>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Regler</translation>
    </message>
    <message>
        <source>On an exponential scale small values get more room. Choose the value that stands in the middle: the slider keeps its value and moves to where that is now.</source>
        <translation>Auf einer exponentiellen Skala bekommen kleine Werte mehr Platz. Wählen Sie den Wert, der in der Mitte steht: der Regler behält seinen Wert und geht dorthin, wo dieser jetzt liegt.</translation>
    </message>
    <message>
        <source>Width of a brush</source>
        <translation>Breite eines Pinsels</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Exponentiell</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Gleichmäßig</translation>
    </message>
    <message>
        <source>Value in the middle</source>
        <translation>Wert in der Mitte</translation>
    </message>
    <message>
        <source>Its share of the whole</source>
        <translation>Sein Anteil am Ganzen</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Breite in Pixeln</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Stellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Exponent</source>
        <translation>Exponent</translation>
    </message>
    <message>
        <source>Fields that take numbers only: a pattern tells what can be typed.</source>
        <translation>Felder, die nur Zahlen annehmen: ein Muster sagt, was sich eingeben lässt.</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Ganze Zahl</translation>
    </message>
    <message>
        <source>Whole, no sign</source>
        <translation>Ganze Zahl, ohne Vorzeichen</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Dezimalzahl</translation>
    </message>
    <message>
        <source>Decimal, no sign</source>
        <translation>Dezimalzahl, ohne Vorzeichen</translation>
    </message>
</context>
<context>
    <name>ScaleCurve</name>
    <message>
        <source>Values over positions</source>
        <translation>Werte über Stellungen</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Stellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>ResourcesPage</name>
    <message>
        <source>compiled in</source>
        <translation>einkompiliert</translation>
    </message>
    <message>
        <source>file on disk</source>
        <translation>Datei auf der Platte</translation>
    </message>
    <message>
        <source>nothing there</source>
        <translation>nichts gefunden</translation>
    </message>
    <message>
        <source>Where addresses lead</source>
        <translation>Wohin Adressen führen</translation>
    </message>
    <message>
        <source>The developer's mode is on: the gallery's QML files are read from the source tree, and a page shows again as soon as one of them is saved.</source>
        <translation>Der Entwicklermodus ist an: die QML-Dateien der Galerie kommen aus dem Quellbaum, und eine Seite erscheint neu, sobald eine von ihnen gespeichert wird.</translation>
    </message>
    <message>
        <source>The developer's mode is off: QML files are compiled in. Start the gallery with ORV_DEVELOP_RESOURCES set, and they are read from the source tree instead.</source>
        <translation>Der Entwicklermodus ist aus: QML-Dateien sind einkompiliert. Starten Sie die Galerie mit gesetztem ORV_DEVELOP_RESOURCES, dann kommen sie aus dem Quellbaum.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>The pages of this program</source>
        <translation>Die Seiten dieses Programms</translation>
    </message>
</context>
<context>
    <name>Resize</name>
    <message>
        <source>A width of %1 pixels is too large: %2 is the largest.</source>
        <translation>Eine Breite von %1 Pixeln ist zu groß: %2 ist die größte.</translation>
    </message>
    <message>
        <source>A width of %1 pixels leaves nothing: 1 is the smallest.</source>
        <translation>Eine Breite von %1 Pixeln lässt nichts übrig: 1 ist die kleinste.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no width: it is a whole number of pixels.</source>
        <translation>„%1“ ist keine Breite: sie ist eine ganze Zahl von Pixeln.</translation>
    </message>
    <message>
        <source>There is no folder to take images from.</source>
        <translation>Es fehlt der Ordner, aus dem die Bilder kommen.</translation>
    </message>
    <message>
        <source>There is no folder to put images into.</source>
        <translation>Es fehlt der Ordner, in den die Bilder kommen.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Es gibt keinen Ordner %1.</translation>
    </message>
    <message>
        <source>%1 is no folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read.</source>
        <translation>Der Ordner %1 lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>The images would replace themselves: both folders are the same.</source>
        <translation>Die Bilder würden sich selbst ersetzen: Beide Ordner sind derselbe.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1.</source>
        <translation>In den Ordner %1 lässt sich nichts schreiben.</translation>
    </message>
    <message>
        <source>There are no images in %1.</source>
        <translation>In %1 gibt es keine Bilder.</translation>
    </message>
    <message>
        <source>it cannot be opened: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>it cannot be written: %1</source>
        <translation>lässt sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>it takes more memory than there is</source>
        <translation>braucht mehr Speicher, als da ist</translation>
    </message>
    <message>
        <source>it is no image, whatever its name says</source>
        <translation>ist kein Bild, auch wenn es so heißt</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>ist abgeschnitten</translation>
    </message>
    <message>
        <source>its %1x%2 pixels are too many: each side has %3 at most</source>
        <translation>hat mit %1x%2 zu viele Pixel: jede Seite hat höchstens %3</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Images resized: %1 of %2.</source>
        <translation>Skalierte Bilder: %1 von %2.</translation>
    </message>
    <message>
        <source>Failed: %1.</source>
        <translation>Fehlgeschlagen: %1.</translation>
    </message>
    <message>
        <source>Resizing images</source>
        <translation>Bilder werden skaliert</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <translation>noch etwa %1</translation>
    </message>
</context>
<context>
    <name>ResizePage</name>
    <message>
        <source>Batch resize</source>
        <translation>Stapelweise skalieren</translation>
    </message>
    <message>
        <source>Scales all images of a folder to a width and puts them into another folder. Images that are no wider stay as they are. Cancelling leaves only whole images behind.</source>
        <translation>Skaliert alle Bilder eines Ordners auf eine Breite und legt sie in einen anderen Ordner. Bilder, die nicht breiter sind, bleiben, wie sie sind. Ein Abbruch hinterlässt nur ganze Bilder.</translation>
    </message>
    <message>
        <source>From the folder</source>
        <translation>Aus dem Ordner</translation>
    </message>
    <message>
        <source>Into the folder</source>
        <translation>In den Ordner</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Breite in Pixeln</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>KeysPage</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Choose a command and press the key that it is to have. If another command has that key, you are asked first. Your keys are kept for the next time.</source>
        <translation>Wählen Sie einen Befehl und drücken Sie die Taste, die er haben soll. Hat ein anderer Befehl diese Taste, werden Sie vorher gefragt. Ihre Tasten bleiben für das nächste Mal erhalten.</translation>
    </message>
    <message>
        <source>Search by command, menu or key</source>
        <translation>Suche nach Befehl, Menü oder Taste</translation>
    </message>
</context>
<context>
    <name>CommandList</name>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>No command has all these words.</source>
        <translation>Kein Befehl enthält alle diese Wörter.</translation>
    </message>
</context>
<context>
    <name>KeyField</name>
    <message>
        <source>Press the key for %1</source>
        <translation>Taste für %1 drücken</translation>
    </message>
    <message>
        <source>Press the key</source>
        <translation>Taste drücken</translation>
    </message>
    <message>
        <source>Esc leaves all as it is</source>
        <translation>Esc lässt alles, wie es ist</translation>
    </message>
    <message>
        <source>Menus do not know that key</source>
        <translation>Menüs kennen diese Taste nicht</translation>
    </message>
</context>
<context>
    <name>KeyPanel</name>
    <message>
        <source>Without an entry in a menu</source>
        <translation>Ohne Eintrag in einem Menü</translation>
    </message>
    <message>
        <source>It has no key.</source>
        <translation>Er hat keine Taste.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Add a key</source>
        <translation>Taste hinzufügen</translation>
    </message>
    <message>
        <source>Take it over</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>Belassen</translation>
    </message>
    <message>
        <source>Factory keys for this command</source>
        <translation>Werkstasten für diesen Befehl</translation>
    </message>
    <message>
        <source>Factory keys for all commands...</source>
        <translation>Werkstasten für alle Befehle...</translation>
    </message>
    <message>
        <source>Commands with keys of your own: %1.</source>
        <translation>Befehle mit eigenen Tasten: %1.</translation>
    </message>
    <message>
        <source>Take all back</source>
        <translation>Alle zurücknehmen</translation>
    </message>
    <message>
        <source>Keep them</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>NoticeStrip</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Gallery::KeyEditor</name>
    <message>
        <source>%1 is the key of %2.</source>
        <translation>%1 ist die Taste von %2.</translation>
    </message>
    <message>
        <source>%1 has the key %2 now.</source>
        <translation>%1 hat jetzt die Taste %2.</translation>
    </message>
    <message>
        <source>%1 has the key %2 already.</source>
        <translation>%1 hat die Taste %2 schon.</translation>
    </message>
    <message>
        <source>%1 has the key %2 now, which was taken from %3.</source>
        <translation>%1 hat jetzt die Taste %2, die %3 genommen wurde.</translation>
    </message>
    <message>
        <source>%1 keeps the key %2.</source>
        <translation>%1 behält die Taste %2.</translation>
    </message>
    <message>
        <source>%1 has lost the key %2.</source>
        <translation>%1 hat die Taste %2 verloren.</translation>
    </message>
    <message>
        <source>%1 has its factory keys again.</source>
        <translation>%1 hat wieder die Werkstasten.</translation>
    </message>
    <message>
        <source>%1 has its factory keys again, but for %2: another command has that.</source>
        <translation>%1 hat wieder die Werkstasten, nur %2 nicht: ein anderer Befehl hat sie.</translation>
    </message>
    <message>
        <source>All commands have their factory keys.</source>
        <translation>Alle Befehle haben ihre Werkstasten.</translation>
    </message>
</context>
<context>
    <name>Gallery::MenuKeeper</name>
    <message>
        <source>The menus cannot be stored in %1 (%2), so keys that you change last until the program ends.</source>
        <translation>Die Menüs lassen sich nicht in %1 speichern (%2), geänderte Tasten gelten also bis zum Ende des Programms.</translation>
    </message>
    <message>
        <source>The stored menus cannot be read, so they were set aside as %1 and the factory menus loaded.</source>
        <translation>Die gespeicherten Menüs sind nicht lesbar und wurden als %1 beiseite gelegt, die Werksmenüs sind geladen.</translation>
    </message>
    <message>
        <source>The stored menus in %1 cannot be read, so the factory menus were loaded and nothing is stored.</source>
        <translation>Die gespeicherten Menüs in %1 sind nicht lesbar, darum sind die Werksmenüs geladen, und gespeichert wird nichts.</translation>
    </message>
</context>
<context>
    <name>Gallery::ToolbarKeeper</name>
    <message>
        <source>The toolbars cannot be stored in %1 (%2), so changes to them last until the program ends.</source>
        <translation>Die Symbolleisten lassen sich nicht in %1 speichern (%2); Änderungen an ihnen gelten, bis das Programm endet.</translation>
    </message>
    <message>
        <source>The stored toolbars cannot be read, so they were set aside as %1 and the factory toolbars loaded.</source>
        <translation>Die gespeicherten Symbolleisten sind nicht lesbar und wurden als %1 beiseite gelegt, die Werksleisten sind geladen.</translation>
    </message>
    <message>
        <source>The stored toolbars in %1 cannot be read, so the factory toolbars were loaded and nothing is stored.</source>
        <translation>Die gespeicherten Symbolleisten in %1 sind nicht lesbar, darum sind die Werksleisten geladen, und gespeichert wird nichts.</translation>
    </message>
</context>
<context>
    <name>ColourField</name>
    <message>
        <source>Foreground colour: %1</source>
        <translation>Vordergrundfarbe: %1</translation>
    </message>
</context>
<context>
    <name>ZoomSlider</name>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>Gallery::PageHolder</name>
    <message>
        <source>The root of a page must be an item.</source>
        <translation>Die Wurzel einer Seite muss ein Item sein.</translation>
    </message>
</context>
<context>
    <name>Gallery::OffscreenPicture</name>
    <message>
        <source>Scenes without a window are drawn with OpenGL, and this window is not.</source>
        <translation>Szenen ohne Fenster werden mit OpenGL gezeichnet, dieses Fenster aber nicht.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Choose a command, or press its key.</source>
        <translation>Wählen Sie einen Befehl oder drücken Sie seine Taste.</translation>
    </message>
    <message>
        <source>found in %1</source>
        <translation>gefunden in %1</translation>
    </message>
</context>
<context>
    <name>SortHeader</name>
    <message>
        <source>Sort by %1</source>
        <translation>Nach %1 ordnen</translation>
    </message>
    <message>
        <source>%1, sorted downwards</source>
        <translation>%1, absteigend geordnet</translation>
    </message>
    <message>
        <source>%1, sorted upwards</source>
        <translation>%1, aufsteigend geordnet</translation>
    </message>
</context>
<context>
    <name>WriteLight</name>
    <message>
        <source>Files can be written here.</source>
        <translation>Hier lassen sich Dateien schreiben.</translation>
    </message>
    <message>
        <source>There is no such folder, but it can be made.</source>
        <translation>Diesen Ordner gibt es nicht, er lässt sich aber anlegen.</translation>
    </message>
    <message>
        <source>Nothing can be written here.</source>
        <translation>Hier lässt sich nichts schreiben.</translation>
    </message>
</context>
<context>
    <name>RowNameField</name>
    <message>
        <source>New name of %1</source>
        <translation>Neuer Name von %1</translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Folder, changed %1</source>
        <translation>Ordner, geändert %1</translation>
    </message>
    <message>
        <source>%1, changed %2</source>
        <translation>%1, geändert %2</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>There is no folder %1 that can be read.</source>
        <translation>Es gibt keinen Ordner %1, der sich lesen lässt.</translation>
    </message>
    <message>
        <source>Changed %1</source>
        <translation>Geändert %1</translation>
    </message>
    <message>
        <source>Made %1, changed %2</source>
        <translation>Angelegt %1, geändert %2</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>A folder, in step with the disk. Enter opens a folder and Backspace goes up; F2 changes a name, and Del puts a file into the trash.</source>
        <translation>Ein Ordner, immer auf dem Stand der Platte. Die Eingabetaste öffnet einen Ordner, die Rücktaste geht nach oben; F2 ändert einen Namen, und Entf legt eine Datei in den Papierkorb.</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Names, such as *.png</source>
        <translation>Namen, etwa *.png</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>The folder is not there any more.</source>
        <translation>Den Ordner gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Nothing lies in this folder.</source>
        <translation>In diesem Ordner liegt nichts.</translation>
    </message>
    <message>
        <source>No name here matches.</source>
        <translation>Kein Name hier passt.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Remove for good</source>
        <translation>Endgültig entfernen</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Row %1, %2, %3 %</source>
        <translation>Zeile %1, %2, %3 %</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>No row in hand</source>
        <translation>Keine Zeile gewählt</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Insert above</source>
        <translation>Darüber neu</translation>
    </message>
    <message>
        <source>Insert at the end</source>
        <translation>Am Ende neu</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Begin again</source>
        <translation>Neu beginnen</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>Himmel</translation>
    </message>
    <message>
        <source>Hills</source>
        <translation>Hügel</translation>
    </message>
    <message>
        <source>Harbour</source>
        <translation>Hafen</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Boote</translation>
    </message>
    <message>
        <source>Boats, mirrored</source>
        <translation>Boote, gespiegelt</translation>
    </message>
    <message>
        <source>Evening light</source>
        <translation>Abendlicht</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Lamp glow</source>
        <translation>Laternenschein</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title shadow</source>
        <translation>Titelschatten</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Signatur</translation>
    </message>
    <message>
        <source>Row %1 is row %2 now.</source>
        <translation>Zeile %1 ist jetzt Zeile %2.</translation>
    </message>
    <message>
        <source>New layer</source>
        <translation>Neue Ebene</translation>
    </message>
    <message>
        <source>Row %1 is new.</source>
        <translation>Zeile %1 ist neu.</translation>
    </message>
    <message>
        <source>%1 is removed.</source>
        <translation>%1 ist entfernt.</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listen</translation>
    </message>
    <message>
        <source>One list in C++, shown through a filter. Carry a row by its handle, or with Alt and the arrows; F2 changes its name, Left and Right its opacity, Ins and Del add and remove rows.</source>
        <translation>Eine Liste in C++, durch einen Filter gezeigt. Eine Zeile zieht man am Griff oder mit Alt und den Pfeilen; F2 ändert ihren Namen, Links und Rechts ihre Deckkraft, Einfg und Entf fügen Zeilen ein und entfernen sie.</translation>
    </message>
    <message>
        <source>Show rows with</source>
        <translation>Zeilen zeigen mit</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>Wildcards</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Anywhere</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>This is no expression yet.</source>
        <translation>Das ist noch kein Ausdruck.</translation>
    </message>
    <message>
        <source>The list is empty.</source>
        <translation>Die Liste ist leer.</translation>
    </message>
    <message>
        <source>No row matches.</source>
        <translation>Keine Zeile passt.</translation>
    </message>
    <message>
        <source>Rows can be moved while they are sorted upwards by their number.</source>
        <translation>Zeilen lassen sich verschieben, solange sie nach ihrer Nummer geordnet sind.</translation>
    </message>
    <message>
        <source>Rows shown: %1</source>
        <translation>Gezeigte Zeilen: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FileEdits</name>
    <message>
        <source>There is no trash for %1. Remove it for good? That cannot be undone.</source>
        <translation>Für %1 gibt es keinen Papierkorb. Endgültig entfernen? Das lässt sich nicht zurücknehmen.</translation>
    </message>
    <message>
        <source>%1 is now %2.</source>
        <translation>%1 heißt jetzt %2.</translation>
    </message>
    <message>
        <source>A name needs at least one letter.</source>
        <translation>Ein Name braucht mindestens einen Buchstaben.</translation>
    </message>
    <message>
        <source>%1 cannot be a name.</source>
        <translation>%1 kann kein Name sein.</translation>
    </message>
    <message>
        <source>There is something else with the name %1.</source>
        <translation>Es gibt schon etwas mit dem Namen %1.</translation>
    </message>
    <message>
        <source>%1 could not be renamed.</source>
        <translation>%1 ließ sich nicht umbenennen.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>%1 stays: nothing can be changed in its folder.</source>
        <translation>%1 bleibt: in seinem Ordner lässt sich nichts ändern.</translation>
    </message>
    <message>
        <source>%1 is in the trash.</source>
        <translation>%1 ist im Papierkorb.</translation>
    </message>
    <message>
        <source>%1 stays: there is no trash for it, and folders are not removed for good.</source>
        <translation>%1 bleibt: dafür gibt es keinen Papierkorb, und Ordner werden nicht endgültig entfernt.</translation>
    </message>
    <message>
        <source>%1 could not be removed.</source>
        <translation>%1 ließ sich nicht entfernen.</translation>
    </message>
    <message>
        <source>%1 is removed for good.</source>
        <translation>%1 ist endgültig entfernt.</translation>
    </message>
    <message>
        <source>%1 is not in the trash any more.</source>
        <translation>%1 ist nicht mehr im Papierkorb.</translation>
    </message>
    <message>
        <source>%1 stays in the trash: something else has its name now.</source>
        <translation>%1 bleibt im Papierkorb: seinen Namen trägt jetzt etwas anderes.</translation>
    </message>
    <message>
        <source>%1 could not be taken out of the trash.</source>
        <translation>%1 ließ sich nicht aus dem Papierkorb holen.</translation>
    </message>
    <message>
        <source>%1 is back.</source>
        <translation>%1 ist wieder da.</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>&amp;File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>Neu ...</translation>
    </message>
    <message>
        <source>New from &amp;Sample</source>
        <translation>Neu aus Beispiel</translation>
    </message>
    <message>
        <source>Lake at &amp;Dawn</source>
        <translation>See im Morgengrauen</translation>
    </message>
    <message>
        <source>Colour &amp;Chart</source>
        <translation>Farbtafel</translation>
    </message>
    <message>
        <source>Concentric &amp;Rings</source>
        <translation>Ringe</translation>
    </message>
    <message>
        <source>New from Clip&amp;board</source>
        <translation>Neu aus Zwischenablage</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Öffnen ...</translation>
    </message>
    <message>
        <source>Open as &amp;Layers...</source>
        <translation>Als Ebenen öffnen ...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>harbour-evening.png</source>
        <translation>hafen-abend.png</translation>
    </message>
    <message>
        <source>portrait-study.tif</source>
        <translation>portrait-studie.tif</translation>
    </message>
    <message>
        <source>scan 0042.jpg</source>
        <translation>scan 0042.jpg</translation>
    </message>
    <message>
        <source>R&amp;&amp;D poster.png</source>
        <translation>F&amp;&amp;E-Plakat.png</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern unter ...</translation>
    </message>
    <message>
        <source>Save a Cop&amp;y...</source>
        <translation>Kopie speichern ...</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>From &amp;Scanner...</source>
        <translation>Vom Scanner ...</translation>
    </message>
    <message>
        <source>From &amp;Camera...</source>
        <translation>Von der Kamera ...</translation>
    </message>
    <message>
        <source>&amp;Raw Photographs...</source>
        <translation>Rohbilder ...</translation>
    </message>
    <message>
        <source>Screen Sho&amp;t...</source>
        <translation>Bildschirmfoto ...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Export A&amp;gain</source>
        <translation>Erneut exportieren</translation>
    </message>
    <message>
        <source>&amp;Export As...</source>
        <translation>Exportieren als ...</translation>
    </message>
    <message>
        <source>&amp;PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>&amp;JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>&amp;WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>&amp;TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>PDF &amp;Page</source>
        <translation>PDF-Seite</translation>
    </message>
    <message>
        <source>&amp;Slices</source>
        <translation>Ausschnitte</translation>
    </message>
    <message>
        <source>&amp;Layers as Files...</source>
        <translation>Ebenen als Dateien ...</translation>
    </message>
    <message>
        <source>Batch Resi&amp;ze...</source>
        <translation>Stapelweise skalieren...</translation>
    </message>
    <message>
        <source>Page Set&amp;up...</source>
        <translation>Seite einrichten ...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Drucken ...</translation>
    </message>
    <message>
        <source>Propert&amp;ies...</source>
        <translation>Eigenschaften ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close All</source>
        <translation>Alle schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Undo &amp;History...</source>
        <translation>Verlauf ...</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Merged</source>
        <translation>Sichtbares kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste Spec&amp;ial</source>
        <translation>Einfügen als</translation>
    </message>
    <message>
        <source>In &amp;Place</source>
        <translation>An gleicher Stelle</translation>
    </message>
    <message>
        <source>As New &amp;Layer</source>
        <translation>Als neue Ebene</translation>
    </message>
    <message>
        <source>As New &amp;Image</source>
        <translation>Als neues Bild</translation>
    </message>
    <message>
        <source>Into &amp;Selection</source>
        <translation>In die Auswahl</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Fill with &amp;Foreground</source>
        <translation>Mit Vordergrund füllen</translation>
    </message>
    <message>
        <source>Fill with &amp;Background</source>
        <translation>Mit Hintergrund füllen</translation>
    </message>
    <message>
        <source>Fill with Patter&amp;n...</source>
        <translation>Mit Muster füllen ...</translation>
    </message>
    <message>
        <source>&amp;Stroke Selection...</source>
        <translation>Auswahl nachziehen ...</translation>
    </message>
    <message>
        <source>Keyboard Short&amp;cuts...</source>
        <translation>Tastenkürzel ...</translation>
    </message>
    <message>
        <source>Prefer&amp;ences...</source>
        <translation>Einstellungen ...</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>&amp;Image Size...</source>
        <translation>Bildgröße ...</translation>
    </message>
    <message>
        <source>Canvas &amp;Size...</source>
        <translation>Leinwandgröße ...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Crop to Se&amp;lection</source>
        <translation>Auf Auswahl zuschneiden</translation>
    </message>
    <message>
        <source>&amp;Trim Borders...</source>
        <translation>Ränder abschneiden ...</translation>
    </message>
    <message>
        <source>&amp;Transform</source>
        <translation>Transformieren</translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>&amp;90° Clockwise</source>
        <translation>90° im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>90° Counter&amp;clockwise</source>
        <translation>90° gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>&amp;180°</source>
        <translation>180°</translation>
    </message>
    <message>
        <source>&amp;Straighten</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Any A&amp;ngle...</source>
        <translation>Beliebiger Winkel ...</translation>
    </message>
    <message>
        <source>&amp;Flip</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>&amp;Horizontally</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>&amp;Vertically</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>&amp;Perspective...</source>
        <translation>Perspektive ...</translation>
    </message>
    <message>
        <source>&amp;Shear...</source>
        <translation>Scheren ...</translation>
    </message>
    <message>
        <source>&amp;Lens Correction...</source>
        <translation>Objektivkorrektur ...</translation>
    </message>
    <message>
        <source>Colour &amp;Mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>&amp;RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>&amp;Grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>&amp;Indexed...</source>
        <translation>Indiziert ...</translation>
    </message>
    <message>
        <source>&amp;CMYK</source>
        <translation>CMYK</translation>
    </message>
    <message>
        <source>&amp;Lab</source>
        <translation>Lab</translation>
    </message>
    <message>
        <source>&amp;Bits per Channel</source>
        <translation>Bit je Kanal</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>16</source>
        <translation>16</translation>
    </message>
    <message>
        <source>32 (linear light)</source>
        <translation>32 (lineares Licht)</translation>
    </message>
    <message>
        <source>&amp;Assign Profile...</source>
        <translation>Profil zuweisen ...</translation>
    </message>
    <message>
        <source>&amp;Convert to Profile...</source>
        <translation>In Profil umwandeln ...</translation>
    </message>
    <message>
        <source>&amp;Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>&amp;New Layer...</source>
        <translation>Neue Ebene ...</translation>
    </message>
    <message>
        <source>New Layer from &amp;Copy</source>
        <translation>Neue Ebene durch Kopieren</translation>
    </message>
    <message>
        <source>New Layer from C&amp;ut</source>
        <translation>Neue Ebene durch Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Delete Layer</source>
        <translation>Ebene löschen</translation>
    </message>
    <message>
        <source>Layer &amp;Visible</source>
        <translation>Ebene sichtbar</translation>
    </message>
    <message>
        <source>&amp;Lock Layer</source>
        <translation>Ebene sperren</translation>
    </message>
    <message>
        <source>Blend &amp;Mode</source>
        <translation>Mischmodus</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Auflösen</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Abdunkeln</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplizieren</translation>
    </message>
    <message>
        <source>Colour Burn</source>
        <translation>Farbig nachbelichten</translation>
    </message>
    <message>
        <source>Linear Burn</source>
        <translation>Linear nachbelichten</translation>
    </message>
    <message>
        <source>Darker Colour</source>
        <translation>Dunklere Farbe</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aufhellen</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Negativ multiplizieren</translation>
    </message>
    <message>
        <source>Colour Dodge</source>
        <translation>Farbig abwedeln</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Addieren</translation>
    </message>
    <message>
        <source>Lighter Colour</source>
        <translation>Hellere Farbe</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Überlagern</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Weiches Licht</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Hartes Licht</translation>
    </message>
    <message>
        <source>Vivid Light</source>
        <translation>Strahlendes Licht</translation>
    </message>
    <message>
        <source>Linear Light</source>
        <translation>Lineares Licht</translation>
    </message>
    <message>
        <source>Pin Light</source>
        <translation>Punktlicht</translation>
    </message>
    <message>
        <source>Hard Mix</source>
        <translation>Hart mischen</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Ausschluss</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Subtrahieren</translation>
    </message>
    <message>
        <source>Divide</source>
        <translation>Dividieren</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Leuchtkraft</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Dahinter</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Radieren</translation>
    </message>
    <message>
        <source>Exclusive Or</source>
        <translation>Ausschließendes Oder</translation>
    </message>
    <message>
        <source>Alpha Copy</source>
        <translation>Alpha kopieren</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>80 %</source>
        <translation>80 %</translation>
    </message>
    <message>
        <source>60 %</source>
        <translation>60 %</translation>
    </message>
    <message>
        <source>40 %</source>
        <translation>40 %</translation>
    </message>
    <message>
        <source>20 %</source>
        <translation>20 %</translation>
    </message>
    <message>
        <source>&amp;Arrange</source>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>Bring to &amp;Front</source>
        <translation>Ganz nach vorn</translation>
    </message>
    <message>
        <source>Bring For&amp;ward</source>
        <translation>Eine Stufe nach vorn</translation>
    </message>
    <message>
        <source>Send Back&amp;ward</source>
        <translation>Eine Stufe nach hinten</translation>
    </message>
    <message>
        <source>Send to &amp;Back</source>
        <translation>Ganz nach hinten</translation>
    </message>
    <message>
        <source>&amp;Reverse Order</source>
        <translation>Reihenfolge umkehren</translation>
    </message>
    <message>
        <source>Layer Mas&amp;k</source>
        <translation>Ebenenmaske</translation>
    </message>
    <message>
        <source>&amp;Reveal All</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>&amp;Hide All</source>
        <translation>Alles verbergen</translation>
    </message>
    <message>
        <source>From &amp;Selection</source>
        <translation>Aus der Auswahl</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>&amp;Group Layers</source>
        <translation>Ebenen gruppieren</translation>
    </message>
    <message>
        <source>Un&amp;group Layers</source>
        <translation>Gruppierung aufheben</translation>
    </message>
    <message>
        <source>Merge &amp;Down</source>
        <translation>Mit unterer verbinden</translation>
    </message>
    <message>
        <source>Merge V&amp;isible</source>
        <translation>Sichtbare verbinden</translation>
    </message>
    <message>
        <source>&amp;Flatten Image</source>
        <translation>Auf eine Ebene reduzieren</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>&amp;Inverse</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>&amp;Reselect</source>
        <translation>Erneut auswählen</translation>
    </message>
    <message>
        <source>By Co&amp;lour...</source>
        <translation>Nach Farbe ...</translation>
    </message>
    <message>
        <source>S&amp;ubject</source>
        <translation>Motiv</translation>
    </message>
    <message>
        <source>&amp;Opaque Pixels</source>
        <translation>Deckende Pixel</translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation>Verändern</translation>
    </message>
    <message>
        <source>&amp;Grow</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>&amp;Shrink</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>&amp;Feather...</source>
        <translation>Weiche Kante ...</translation>
    </message>
    <message>
        <source>&amp;Border...</source>
        <translation>Rand ...</translation>
    </message>
    <message>
        <source>S&amp;mooth...</source>
        <translation>Glätten ...</translation>
    </message>
    <message>
        <source>&amp;Remove Holes</source>
        <translation>Löcher entfernen</translation>
    </message>
    <message>
        <source>&amp;Quick Mask</source>
        <translation>Schnellmaske</translation>
    </message>
    <message>
        <source>Show &amp;Edges</source>
        <translation>Kanten zeigen</translation>
    </message>
    <message>
        <source>L&amp;oad Selection...</source>
        <translation>Auswahl laden ...</translation>
    </message>
    <message>
        <source>&amp;Save Selection...</source>
        <translation>Auswahl speichern ...</translation>
    </message>
    <message>
        <source>&amp;Adjust</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>&amp;Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Auto &amp;Levels</source>
        <translation>Tonwerte automatisch</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>&amp;Brighter</source>
        <translation>Heller</translation>
    </message>
    <message>
        <source>&amp;Darker</source>
        <translation>Dunkler</translation>
    </message>
    <message>
        <source>More &amp;Contrast</source>
        <translation>Mehr Kontrast</translation>
    </message>
    <message>
        <source>&amp;Less Contrast</source>
        <translation>Weniger Kontrast</translation>
    </message>
    <message>
        <source>L&amp;evels...</source>
        <translation>Tonwerte ...</translation>
    </message>
    <message>
        <source>C&amp;urves...</source>
        <translation>Gradationskurven ...</translation>
    </message>
    <message>
        <source>E&amp;xposure...</source>
        <translation>Belichtung ...</translation>
    </message>
    <message>
        <source>Shadows and &amp;Highlights...</source>
        <translation>Tiefen und Lichter ...</translation>
    </message>
    <message>
        <source>&amp;Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>&amp;Warmer</source>
        <translation>Wärmer</translation>
    </message>
    <message>
        <source>C&amp;ooler</source>
        <translation>Kühler</translation>
    </message>
    <message>
        <source>More &amp;Vivid</source>
        <translation>Kräftiger</translation>
    </message>
    <message>
        <source>&amp;Paler</source>
        <translation>Blasser</translation>
    </message>
    <message>
        <source>&amp;Hue and Saturation...</source>
        <translation>Farbton und Sättigung ...</translation>
    </message>
    <message>
        <source>Colour &amp;Balance...</source>
        <translation>Farbbalance ...</translation>
    </message>
    <message>
        <source>Channel &amp;Mixer...</source>
        <translation>Kanalmixer ...</translation>
    </message>
    <message>
        <source>&amp;Replace Colour...</source>
        <translation>Farbe ersetzen ...</translation>
    </message>
    <message>
        <source>Photo &amp;Filter...</source>
        <translation>Fotofilter ...</translation>
    </message>
    <message>
        <source>&amp;Threshold</source>
        <translation>Schwellwert</translation>
    </message>
    <message>
        <source>&amp;Posterize</source>
        <translation>Tontrennung</translation>
    </message>
    <message>
        <source>Gradient &amp;Map...</source>
        <translation>Verlaufsumsetzung ...</translation>
    </message>
    <message>
        <source>&amp;Equalize</source>
        <translation>Angleichen</translation>
    </message>
    <message>
        <source>Fil&amp;ters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>&amp;Repeat Last</source>
        <translation>Letzten wiederholen</translation>
    </message>
    <message>
        <source>&amp;Show Last...</source>
        <translation>Letzten zeigen ...</translation>
    </message>
    <message>
        <source>&amp;Blur</source>
        <translation>Weichzeichnen</translation>
    </message>
    <message>
        <source>&amp;Soft</source>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>S&amp;tronger</source>
        <translation>Stärker</translation>
    </message>
    <message>
        <source>&amp;Gaussian...</source>
        <translation>Nach Gauß ...</translation>
    </message>
    <message>
        <source>&amp;Motion...</source>
        <translation>Bewegung ...</translation>
    </message>
    <message>
        <source>&amp;Radial...</source>
        <translation>Kreisförmig ...</translation>
    </message>
    <message>
        <source>&amp;Lens...</source>
        <translation>Objektiv ...</translation>
    </message>
    <message>
        <source>M&amp;edian</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>S&amp;harpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>&amp;Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>&amp;Unsharp Mask...</source>
        <translation>Unscharf maskieren ...</translation>
    </message>
    <message>
        <source>&amp;High Pass...</source>
        <translation>Hochpass ...</translation>
    </message>
    <message>
        <source>&amp;Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>&amp;Add Grain</source>
        <translation>Korn hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Reduce...</source>
        <translation>Verringern ...</translation>
    </message>
    <message>
        <source>&amp;Dust and Scratches...</source>
        <translation>Staub und Kratzer ...</translation>
    </message>
    <message>
        <source>&amp;Distort</source>
        <translation>Verzerren</translation>
    </message>
    <message>
        <source>&amp;Pixelate</source>
        <translation>Pixel vergröbern</translation>
    </message>
    <message>
        <source>&amp;Wave</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>&amp;Twirl...</source>
        <translation>Strudel ...</translation>
    </message>
    <message>
        <source>Pin&amp;ch...</source>
        <translation>Zusammenziehen ...</translation>
    </message>
    <message>
        <source>&amp;Ripple...</source>
        <translation>Kräuseln ...</translation>
    </message>
    <message>
        <source>&amp;Spherize...</source>
        <translation>Auf Kugel ...</translation>
    </message>
    <message>
        <source>Polar &amp;Coordinates...</source>
        <translation>Polarkoordinaten ...</translation>
    </message>
    <message>
        <source>&amp;Stylize</source>
        <translation>Stilisieren</translation>
    </message>
    <message>
        <source>&amp;Find Edges</source>
        <translation>Kanten finden</translation>
    </message>
    <message>
        <source>&amp;Emboss</source>
        <translation>Relief</translation>
    </message>
    <message>
        <source>&amp;Solarize</source>
        <translation>Solarisieren</translation>
    </message>
    <message>
        <source>&amp;Oil Paint...</source>
        <translation>Ölfarbe ...</translation>
    </message>
    <message>
        <source>&amp;Halftone...</source>
        <translation>Raster ...</translation>
    </message>
    <message>
        <source>&amp;Mosaic...</source>
        <translation>Mosaik ...</translation>
    </message>
    <message>
        <source>&amp;Render</source>
        <translation>Erzeugen</translation>
    </message>
    <message>
        <source>&amp;Vignette</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>&amp;Clouds...</source>
        <translation>Wolken ...</translation>
    </message>
    <message>
        <source>&amp;Lens Flare...</source>
        <translation>Blendenfleck ...</translation>
    </message>
    <message>
        <source>Checker&amp;board</source>
        <translation>Schachbrett</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>&amp;Rectangle Select</source>
        <translation>Auswahlrechteck</translation>
    </message>
    <message>
        <source>&amp;Ellipse Select</source>
        <translation>Auswahlellipse</translation>
    </message>
    <message>
        <source>&amp;Lasso</source>
        <translation>Lasso</translation>
    </message>
    <message>
        <source>Magic &amp;Wand</source>
        <translation>Zauberstab</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>Freistellen</translation>
    </message>
    <message>
        <source>E&amp;yedropper</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Rule&amp;r</source>
        <translation>Lineal</translation>
    </message>
    <message>
        <source>&amp;Healing Brush</source>
        <translation>Reparaturpinsel</translation>
    </message>
    <message>
        <source>&amp;Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Pe&amp;ncil</source>
        <translation>Buntstift</translation>
    </message>
    <message>
        <source>Er&amp;aser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Clone &amp;Stamp</source>
        <translation>Stempel</translation>
    </message>
    <message>
        <source>Paint Buc&amp;ket</source>
        <translation>Fülleimer</translation>
    </message>
    <message>
        <source>&amp;Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Smu&amp;dge</source>
        <translation>Wischfinger</translation>
    </message>
    <message>
        <source>D&amp;odge</source>
        <translation>Abwedler</translation>
    </message>
    <message>
        <source>B&amp;urn</source>
        <translation>Nachbelichter</translation>
    </message>
    <message>
        <source>&amp;Pen</source>
        <translation>Zeichenfeder</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Brush &amp;Width</source>
        <translation>Pinselbreite</translation>
    </message>
    <message>
        <source>1 px</source>
        <translation>1 px</translation>
    </message>
    <message>
        <source>2 px</source>
        <translation>2 px</translation>
    </message>
    <message>
        <source>3 px</source>
        <translation>3 px</translation>
    </message>
    <message>
        <source>5 px</source>
        <translation>5 px</translation>
    </message>
    <message>
        <source>8 px</source>
        <translation>8 px</translation>
    </message>
    <message>
        <source>12 px</source>
        <translation>12 px</translation>
    </message>
    <message>
        <source>20 px</source>
        <translation>20 px</translation>
    </message>
    <message>
        <source>32 px</source>
        <translation>32 px</translation>
    </message>
    <message>
        <source>&amp;Foreground Colour</source>
        <translation>Vordergrundfarbe</translation>
    </message>
    <message>
        <source>Colour &amp;Pairs</source>
        <translation>Farbpaare</translation>
    </message>
    <message>
        <source>S&amp;wap Colours</source>
        <translation>Farben tauschen</translation>
    </message>
    <message>
        <source>&amp;Default Colours</source>
        <translation>Standardfarben</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>&amp;Fit in Window</source>
        <translation>In Fenster einpassen</translation>
    </message>
    <message>
        <source>25 %</source>
        <translation>25 %</translation>
    </message>
    <message>
        <source>50 %</source>
        <translation>50 %</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200 %</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>800 %</source>
        <translation>800 %</translation>
    </message>
    <message>
        <source>&amp;Centre Image</source>
        <translation>Bild zentrieren</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>Lineale</translation>
    </message>
    <message>
        <source>&amp;Grid and Guides</source>
        <translation>Raster und Hilfslinien</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>Raster zeigen</translation>
    </message>
    <message>
        <source>Show Gui&amp;des</source>
        <translation>Hilfslinien zeigen</translation>
    </message>
    <message>
        <source>&amp;Snap</source>
        <translation>Einrasten</translation>
    </message>
    <message>
        <source>Grid Si&amp;ze</source>
        <translation>Rasterweite</translation>
    </message>
    <message>
        <source>10 px</source>
        <translation>10 px</translation>
    </message>
    <message>
        <source>25 px</source>
        <translation>25 px</translation>
    </message>
    <message>
        <source>50 px</source>
        <translation>50 px</translation>
    </message>
    <message>
        <source>100 px</source>
        <translation>100 px</translation>
    </message>
    <message>
        <source>200 px</source>
        <translation>200 px</translation>
    </message>
    <message>
        <source>&amp;New Guide...</source>
        <translation>Neue Hilfslinie ...</translation>
    </message>
    <message>
        <source>&amp;Lock Guides</source>
        <translation>Hilfslinien sperren</translation>
    </message>
    <message>
        <source>&amp;Clear Guides</source>
        <translation>Hilfslinien löschen</translation>
    </message>
    <message>
        <source>&amp;Proof Colours</source>
        <translation>Farbprüfung</translation>
    </message>
    <message>
        <source>Gamut &amp;Warning</source>
        <translation>Farbumfang-Warnung</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>&amp;Light Colours</source>
        <translation>Helle Farben</translation>
    </message>
    <message>
        <source>&amp;Dark Colours</source>
        <translation>Dunkle Farben</translation>
    </message>
    <message>
        <source>&amp;Tool Strip</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Side P&amp;anel</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>&amp;Status Line</source>
        <translation>Statuszeile</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>Neues Fenster</translation>
    </message>
    <message>
        <source>N&amp;ext Image</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>&amp;Previous Image</source>
        <translation>Voriges Bild</translation>
    </message>
    <message>
        <source>Tile &amp;Horizontally</source>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>Tile &amp;Vertically</source>
        <translation>Untereinander</translation>
    </message>
    <message>
        <source>&amp;Cascade</source>
        <translation>Überlappend</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>Bedienfelder</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>&amp;Navigator</source>
        <translation>Navigator</translation>
    </message>
    <message>
        <source>&amp;Brushes</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>&amp;What&apos;s This?</source>
        <translation>Was ist das?</translation>
    </message>
    <message>
        <source>&amp;Keyboard Map</source>
        <translation>Tastenübersicht</translation>
    </message>
    <message>
        <source>&amp;About Arbor</source>
        <translation>Über Arbor</translation>
    </message>
    <message>
        <source>Image Area</source>
        <translation>Bildfläche</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Select &amp;Nothing</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Swap Co&amp;lours</source>
        <translation>Farben tauschen</translation>
    </message>
    <message>
        <source>Pan Left</source>
        <translation>Nach links schieben</translation>
    </message>
    <message>
        <source>Pan Right</source>
        <translation>Nach rechts schieben</translation>
    </message>
    <message>
        <source>Pan Up</source>
        <translation>Nach oben schieben</translation>
    </message>
    <message>
        <source>Pan Down</source>
        <translation>Nach unten schieben</translation>
    </message>
    <message>
        <source>Smaller Brush</source>
        <translation>Kleinerer Pinsel</translation>
    </message>
    <message>
        <source>Larger Brush</source>
        <translation>Größerer Pinsel</translation>
    </message>
    <message>
        <source>Previous Layer</source>
        <translation>Vorherige Ebene</translation>
    </message>
    <message>
        <source>Next Layer</source>
        <translation>Nächste Ebene</translation>
    </message>
    <message>
        <source>Undo All</source>
        <translation>Alles zurücknehmen</translation>
    </message>
    <message>
        <source>Before and After</source>
        <translation>Vorher und nachher</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>Symbolleisten</translation>
    </message>
    <message>
        <source>&amp;Main Bar</source>
        <translation>Hauptleiste</translation>
    </message>
    <message>
        <source>Text &amp;Bar</source>
        <translation>Textleiste</translation>
    </message>
    <message>
        <source>&amp;Customise Toolbars...</source>
        <translation>Symbolleisten anpassen...</translation>
    </message>
    <message>
        <source>Main Bar</source>
        <translation>Hauptleiste</translation>
    </message>
    <message>
        <source>Text Bar</source>
        <translation>Textleiste</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Zoom Slider</source>
        <translation>Zoomregler</translation>
    </message>
    <message>
        <source>Colour Field</source>
        <translation>Farbfeld</translation>
    </message>
</context>
</TS>
