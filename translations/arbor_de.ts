<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AbstractGui\CVqAbstractMenu</name>
    <message>
        <source>ctrl</source>
        <translation>strg</translation>
    </message>
    <message>
        <source>alt</source>
        <comment>keyboard key</comment>
        <translation>alt</translation>
    </message>
    <message>
        <source>shift</source>
        <comment>keyboard key</comment>
        <translation>umschalt</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <comment>keyboard key</comment>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <comment>keyboard key</comment>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Break</source>
        <comment>Break keyboard key</comment>
        <translation>Untbr</translation>
    </message>
    <message>
        <source>Backspace</source>
        <comment>Backspace keyboard key</comment>
        <translation>Rück</translation>
    </message>
    <message>
        <source>Tab</source>
        <comment>Tab keyboard key</comment>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Num 5</source>
        <translation>Num 5</translation>
    </message>
    <message>
        <source>Enter</source>
        <comment>Enter keyboard key</comment>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Pause</source>
        <comment>Pause keyboard key</comment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Esc</source>
        <comment>Esc keyboard key</comment>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <comment>Space keyboard key</comment>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>PageUp</source>
        <comment>PageUp keyboard key</comment>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>PageDown</source>
        <comment>PageDown keyboard key</comment>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>End</source>
        <comment>End keyboard key</comment>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>Home keyboard key</comment>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>Left keyboard key</comment>
        <translation>Links</translation>
    </message>
    <message>
        <source>Up</source>
        <comment>Up keyboard key</comment>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Right</source>
        <comment>Right keyboard key</comment>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Down</source>
        <comment>Down keyboard key</comment>
        <translation>Ab</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>Select keyboard key (not present on most keyboards)</comment>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Print</source>
        <comment>Print keyboard key</comment>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Exec</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>SnapShot</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>Insert keyboard key</comment>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>Delete keyboard key</comment>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Num0</source>
        <translation>Num 0</translation>
    </message>
    <message>
        <source>Num1</source>
        <translation>Num 1</translation>
    </message>
    <message>
        <source>Num2</source>
        <translation>Num 2</translation>
    </message>
    <message>
        <source>Num3</source>
        <translation>Num 3</translation>
    </message>
    <message>
        <source>Num4</source>
        <translation>Num 4</translation>
    </message>
    <message>
        <source>Num5</source>
        <translation>Num 5</translation>
    </message>
    <message>
        <source>Num6</source>
        <translation>Num 6</translation>
    </message>
    <message>
        <source>Num7</source>
        <translation>Num 7</translation>
    </message>
    <message>
        <source>Num8</source>
        <translation>Num 8</translation>
    </message>
    <message>
        <source>Num9</source>
        <translation>Num 9</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <comment>NumLock keyboard key</comment>
        <translation>Num</translation>
    </message>
    <message>
        <source>Scroll Lock</source>
        <comment>Scroll_key</comment>
        <translation>Rollen</translation>
    </message>
</context>
<context>
    <name>DelayedProgressWndBase</name>
    <message>
        <source>Progress: %d%%</source>
        <translation>Fortschritt: %d&#xa0;%%</translation>
    </message>
    <message>
        <source>Progress: %3.2f%%</source>
        <translation>Fortschritt: %3.2f&#xa0;%%</translation>
    </message>
    <message>
        <source>Time remaining: %d hour(s)</source>
        <translation>Verbleibende Zeit: %d Stunde(n)</translation>
    </message>
    <message>
        <source>Time remaining: %d minute(s)</source>
        <translation>Verbleibende Zeit: %d Minute(n)</translation>
    </message>
    <message>
        <source>Time remaining: %d seconds</source>
        <translation>Verbleibende Zeit: %d Sekunden</translation>
    </message>
    <message>
        <source>Finalizing...</source>
        <translation>Wird abgeschlossen ...</translation>
    </message>
</context>
<context>
    <name>ProgressPanel</name>
    <message>
        <source>%1 elapsed</source>
        <translation>%1 vergangen</translation>
    </message>
    <message>
        <source>almost done</source>
        <translation>fast fertig</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <translation>noch etwa %1</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1&#xa0;h</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1&#xa0;h %2&#xa0;min</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Wird abgebrochen ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ToolbarMenu</name>
    <message>
        <source>Hide “%1”</source>
        <translation>„%1“ ausblenden</translation>
    </message>
    <message>
        <source>Remove separator</source>
        <translation>Trennlinie entfernen</translation>
    </message>
    <message>
        <source>Show hidden buttons</source>
        <translation>Ausgeblendete Schaltflächen zeigen</translation>
    </message>
    <message>
        <source>Customise...</source>
        <translation>Anpassen ...</translation>
    </message>
</context>
<context>
    <name>ToolbarSession</name>
    <message>
        <source>More buttons</source>
        <translation>Weitere Schaltflächen</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupButtons</name>
    <message>
        <source>There are no buttons on this toolbar.</source>
        <translation>Auf dieser Symbolleiste sind keine Schaltflächen.</translation>
    </message>
    <message>
        <source>Buttons of the toolbar</source>
        <translation>Schaltflächen der Symbolleiste</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Add separator</source>
        <translation>Trennlinie einfügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupCommands</name>
    <message>
        <source>Search commands</source>
        <translation>Befehle suchen</translation>
    </message>
    <message>
        <source>There are no commands.</source>
        <translation>Es gibt keine Befehle.</translation>
    </message>
    <message>
        <source>No command matches.</source>
        <translation>Kein Befehl passt.</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Add to the toolbar</source>
        <translation>Zur Symbolleiste hinzufügen</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupPad</name>
    <message>
        <source>Separator</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>Arrow keys choose a button, with Alt they move it. Delete removes it, Insert adds a separator.</source>
        <translation>Pfeiltasten wählen eine Schaltfläche, mit Alt verschieben sie sie. Entf entfernt sie, Einfg fügt eine Trennlinie ein.</translation>
    </message>
    <message>
        <source>Customise %1</source>
        <translation>%1 anpassen</translation>
    </message>
    <message>
        <source>%1, %2 of %3 on %4</source>
        <translation>%1, %2 von %3 auf %4</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupPanel</name>
    <message>
        <source>Customise toolbars</source>
        <translation>Symbolleisten anpassen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>All toolbars as they were delivered</source>
        <translation>Alle Symbolleisten wie ausgeliefert</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupRow</name>
    <message>
        <source>Separator</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupTabs</name>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
</context>
</TS>
