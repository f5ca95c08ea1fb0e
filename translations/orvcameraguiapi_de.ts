<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActionRunner</name>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Use --any-model to load it nevertheless.</source>
        <translation>Mit --any-model wird sie trotzdem geladen.</translation>
    </message>
    <message>
        <source>The camera does not have it.</source>
        <translation>Die Kamera hat ihn nicht.</translation>
    </message>
</context>
<context>
    <name>BrowserModel</name>
    <message>
        <source>Favourites</source>
        <translation type="unfinished">Favoriten</translation>
    </message>
    <message>
        <source>The features that you have marked with a star</source>
        <translation type="unfinished">Die Parameter, die Sie mit einem Stern markiert haben</translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation type="unfinished">Abgelehnt: %1</translation>
    </message>
</context>
<context>
    <name>CameraInformation</name>
    <message>
        <source>OrvCameraConfiguration</source>
        <translation type="unfinished">OrvCameraConfiguration</translation>
    </message>
    <message>
        <source>1.3.0 (build 2230) </source>
        <translation type="unfinished">1.3.0 (Build 2230) </translation>
    </message>
    <message>
        <source>Copyright %1 2016 The OrvCameraGuiApi developers</source>
        <translation type="unfinished">Copyright %1 2016 Die Entwickler von OrvCameraGuiApi</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation type="unfinished">n. v.</translation>
    </message>
</context>
<context>
    <name>CameraTreeDelegate</name>
    <message>
        <source>This camera cannot be opened: it is in use, or access to it is denied.</source>
        <translation>Diese Kamera kann nicht geöffnet werden: Sie wird benutzt, oder der Zugriff auf sie ist nicht erlaubt.</translation>
    </message>
    <message>
        <source>This camera cannot be opened: its IP address is not in the subnet of the network adapter.</source>
        <translation>Diese Kamera kann nicht geöffnet werden: Ihre IP-Adresse liegt nicht im Subnetz des Netzwerkadapters.</translation>
    </message>
</context>
<context>
    <name>CameraWindows</name>
    <message>
        <source>Feature Tree</source>
        <translation>Parameterbaum</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>The camera has nothing that &apos;%1&apos; could show.</source>
        <translation>Die Kamera hat nichts, was „%1“ zeigen könnte.</translation>
    </message>
</context>
<context>
    <name>Cameras</name>
    <message>
        <source>No camera was found.</source>
        <translation>Es wurde keine Kamera gefunden.</translation>
    </message>
    <message>
        <source>None of the cameras found can be used: %1.</source>
        <translation>Keine der gefundenen Kameras ist verwendbar: %1.</translation>
    </message>
    <message>
        <source>There is no camera &apos;%1&apos;. Found: %2.</source>
        <translation>Es gibt keine Kamera „%1“. Gefunden: %2.</translation>
    </message>
</context>
<context>
    <name>DeviceTreeModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>DiagramDrawing</name>
    <message>
        <source>Width</source>
        <translation type="unfinished">Breite</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation type="unfinished">Verzögerung</translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished">Periode</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation type="unfinished">Bild</translation>
    </message>
    <message>
        <source>Strobe 1</source>
        <translation type="unfinished">Strobe 1</translation>
    </message>
    <message>
        <source>Strobe 2</source>
        <translation type="unfinished">Strobe 2</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation type="unfinished">Belichtung</translation>
    </message>
    <message>
        <source>Readout</source>
        <translation type="unfinished">Auslesen</translation>
    </message>
    <message>
        <source>P%1</source>
        <translation type="unfinished">P%1</translation>
    </message>
    <message>
        <source>E%1</source>
        <translation type="unfinished">E%1</translation>
    </message>
</context>
<context>
    <name>FeatureJournal</name>
    <message>
        <source>There is no %1.</source>
        <translation type="unfinished">%1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Rückgängig</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation type="unfinished">Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished">Wiederherstellen</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation type="unfinished">Wiederherstellen: %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation type="unfinished">%1 und %2 weitere</translation>
    </message>
</context>
<context>
    <name>FeatureMarks</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
    <message>
        <source>Earlier value: %1</source>
        <translation type="unfinished">Früherer Wert: %1</translation>
    </message>
    <message>
        <source>Earlier value: %1 (%2)</source>
        <translation type="unfinished">Früherer Wert: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>FeatureMenu</name>
    <message>
        <source>Copy Name</source>
        <translation type="unfinished">Namen kopieren</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation type="unfinished">Wert kopieren</translation>
    </message>
    <message>
        <source>Copy &quot;Name = Value&quot;</source>
        <translation type="unfinished">„Name = Wert“ kopieren</translation>
    </message>
    <message>
        <source>Go to %1</source>
        <translation type="unfinished">Gehe zu %1</translation>
    </message>
    <message>
        <source>Go to Selected Feature</source>
        <translation type="unfinished">Gehe zu ausgewähltem Parameter</translation>
    </message>
    <message>
        <source>Show in Its Category</source>
        <translation type="unfinished">In seiner Kategorie zeigen</translation>
    </message>
    <message>
        <source>Values by %1…</source>
        <translation type="unfinished">Werte nach %1 …</translation>
    </message>
    <message>
        <source>Remove from Favourites</source>
        <translation type="unfinished">Aus den Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add to Favourites</source>
        <translation type="unfinished">Zu den Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation type="unfinished">Zurückstellen</translation>
    </message>
    <message>
        <source>Expand All Below</source>
        <translation type="unfinished">Alles darunter aufklappen</translation>
    </message>
    <message>
        <source>Collapse All Below</source>
        <translation type="unfinished">Alles darunter zuklappen</translation>
    </message>
    <message>
        <source>Read Again</source>
        <translation type="unfinished">Neu lesen</translation>
    </message>
</context>
<context>
    <name>FeatureSource</name>
    <message>
        <source>%1 (read only)</source>
        <translation>%1 (schreibgeschützt)</translation>
    </message>
    <message>
        <source>The camera &apos;%1&apos; is read only: another program controls it.</source>
        <translation>Die Kamera „%1“ kann nur gelesen werden: Ein anderes Programm steuert sie.</translation>
    </message>
    <message>
        <source>The camera &apos;%1&apos; cannot be opened.</source>
        <translation>Die Kamera „%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The camera &apos;%1&apos; is gone.</source>
        <translation>Die Kamera „%1“ ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The camera &apos;%1&apos; has sent nothing new for %2 seconds.</source>
        <translation>Von der Kamera „%1“ ist seit %2 Sekunden nichts Neues gekommen.</translation>
    </message>
</context>
<context>
    <name>FeatureToolTip</name>
    <message>
        <source>Range: %1 to %2</source>
        <translation type="unfinished">Bereich: %1 bis %2</translation>
    </message>
    <message>
        <source>Increment: %1</source>
        <translation type="unfinished">Schrittweite: %1</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation type="unfinished">Einheit: %1</translation>
    </message>
    <message>
        <source>Feature: %1</source>
        <translation type="unfinished">Parameter: %1</translation>
    </message>
</context>
<context>
    <name>FeatureValue</name>
    <message>
        <source>The text is not in UTF-8.</source>
        <translation type="unfinished">Der Text ist nicht in UTF-8.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number.</source>
        <translation type="unfinished">„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no integer.</source>
        <translation type="unfinished">„%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither true nor false.</source>
        <translation type="unfinished">„%1“ ist weder wahr noch falsch.</translation>
    </message>
    <message>
        <source>There is no entry &apos;%1&apos;.</source>
        <translation type="unfinished">Es gibt keinen Eintrag „%1“.</translation>
    </message>
    <message>
        <source>The camera takes values from %1 to %2.</source>
        <translation type="unfinished">Die Kamera nimmt Werte von %1 bis %2.</translation>
    </message>
    <message>
        <source>The camera does not have it.</source>
        <translation type="unfinished">Die Kamera hat ihn nicht.</translation>
    </message>
    <message>
        <source>It is not available now.</source>
        <translation type="unfinished">Er ist jetzt nicht verfügbar.</translation>
    </message>
    <message>
        <source>It cannot be changed now.</source>
        <translation type="unfinished">Er kann jetzt nicht geändert werden.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation type="unfinished">Er kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The step is %1.</source>
        <translation type="unfinished">Die Schrittweite ist %1.</translation>
    </message>
    <message>
        <source>It has no value.</source>
        <translation type="unfinished">Er hat keinen Wert.</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation type="unfinished">Die Kamera antwortet nicht.</translation>
    </message>
    <message>
        <source>It could not be put back.</source>
        <translation type="unfinished">Er konnte nicht zurückgestellt werden.</translation>
    </message>
    <message>
        <source>The camera has no &apos;%1&apos;.</source>
        <translation type="unfinished">Die Kamera hat kein „%1“.</translation>
    </message>
    <message>
        <source>It is no command.</source>
        <translation type="unfinished">Es ist kein Kommando.</translation>
    </message>
    <message>
        <source>The camera is not done with it yet.</source>
        <translation type="unfinished">Die Kamera ist damit noch nicht fertig.</translation>
    </message>
    <message>
        <source>Its selector has too many values.</source>
        <translation type="unfinished">Sein Selektor hat zu viele Werte.</translation>
    </message>
</context>
<context>
    <name>FramesPanel</name>
    <message>
        <source>%1C</source>
        <translation type="unfinished">%1C</translation>
    </message>
    <message>
        <source>Image size</source>
        <translation type="unfinished">Bildgröße</translation>
    </message>
    <message>
        <source>Frames per second, computed from the frame time</source>
        <translation type="unfinished">Bilder pro Sekunde, aus der Bildzeit berechnet</translation>
    </message>
    <message>
        <source>Frame time</source>
        <translation type="unfinished">Bildzeit</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation type="unfinished">Belichtungszeit</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished">Temperatur</translation>
    </message>
</context>
<context>
    <name>GenParamDelegate</name>
    <message>
        <source>True</source>
        <translation>Wahr</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falsch</translation>
    </message>
</context>
<context>
    <name>GenParamTreeModel</name>
    <message>
        <source>&lt;Value not available&gt;</source>
        <translation>&lt;Wert nicht verfügbar&gt;</translation>
    </message>
    <message>
        <source>&lt;Value not readable&gt;</source>
        <translation>&lt;Wert nicht lesbar&gt;</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Ganzzahl</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Boolesch</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Gleitkommazahl</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Zeichenkette</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>Aufzählung</translation>
    </message>
    <message>
        <source>&lt;i&gt;Limits&lt;/i&gt;: Min: %1, Max: %2</source>
        <translation>&lt;i&gt;Grenzen&lt;/i&gt;: Min.: %1, Max.: %2</translation>
    </message>
    <message>
        <source>&lt;i&gt;Increment&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;Schrittweite&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Valid values&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;Gültige Werte&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Enumeration entries&lt;/i&gt;:</source>
        <translation>&lt;i&gt;Einträge der Aufzählung&lt;/i&gt;:</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2 (0x%3)</source>
        <translation>„%1“: %2 (0x%3)</translation>
    </message>
    <message>
        <source>&lt;i&gt;Name:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Name:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Type:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Typ:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Selectors:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Selektoren:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Description:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Beschreibung:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Wahr</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falsch</translation>
    </message>
    <message>
        <source>&lt;i&gt;Streamable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Streamfähig:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>The feature cannot be written at the moment.</source>
        <translation>Der Parameter kann im Augenblick nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The camera has refused the value.</source>
        <translation>Die Kamera hat den Wert abgelehnt.</translation>
    </message>
</context>
<context>
    <name>GenParamTreeView</name>
    <message>
        <source>GenParamTreeView</source>
        <translation>GenParamTreeView</translation>
    </message>
    <message>
        <source>Visibility:</source>
        <translation>Sichtbarkeit:</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Basis</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Experte</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>Guru</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
</context>
<context>
    <name>HistoryCaption</name>
    <message>
        <source>Click for the last ten minutes</source>
        <translation type="unfinished">Klicken für die letzten zehn Minuten</translation>
    </message>
</context>
<context>
    <name>HistoryChart</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
</context>
<context>
    <name>HistoryWindow</name>
    <message>
        <source>%1, last ten minutes</source>
        <translation type="unfinished">%1, letzte zehn Minuten</translation>
    </message>
    <message>
        <source>Copy as CSV</source>
        <translation type="unfinished">Als CSV kopieren</translation>
    </message>
    <message>
        <source>%1: no values</source>
        <translation type="unfinished">%1: keine Werte</translation>
    </message>
    <message>
        <source>%1: min %2, max %3, mean %4</source>
        <translation type="unfinished">%1: Min. %2, Max. %3, Mittel %4</translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished">Zeit</translation>
    </message>
</context>
<context>
    <name>InfoPane</name>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>OpeningLine</name>
    <message>
        <source>Opening the camera &apos;%1&apos;: %2 %</source>
        <translation>Kamera „%1“ wird geöffnet: %2 %</translation>
    </message>
</context>
<context>
    <name>OpeningProgress</name>
    <message>
        <source>Open Camera</source>
        <translation type="unfinished">Kamera öffnen</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation type="unfinished">%1 wird geöffnet</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation type="unfinished">Verbindung wird hergestellt …</translation>
    </message>
    <message>
        <source>Reading the camera&apos;s description...</source>
        <translation type="unfinished">Die Beschreibung der Kamera wird gelesen …</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Use simulated cameras; nothing is sent anywhere.</source>
        <translation>Simulierte Kameras verwenden; es wird nichts gesendet.</translation>
    </message>
    <message>
        <source>Open the camera of this identifier, serial number or name.</source>
        <translation>Die Kamera mit dieser Kennung, Seriennummer oder diesem Namen öffnen.</translation>
    </message>
    <message>
        <source>Show a GenICam description without a camera; its registers live in memory.</source>
        <translation>Eine GenICam-Beschreibung ohne Kamera zeigen; ihre Register liegen im Speicher.</translation>
    </message>
    <message>
        <source>Print the features as the tree shows them and exit: two blanks of indentation per level, the name, a tab, the value.</source>
        <translation>Die Parameter so ausgeben, wie der Baum sie zeigt, und beenden: je Ebene zwei Leerzeichen Einzug, der Name, ein Tabulator, der Wert.</translation>
    </message>
    <message>
        <source>The level of detail: basic, expert or guru.</source>
        <translation>Der Umfang: basic, expert oder guru.</translation>
    </message>
    <message>
        <source>There is no option &apos;%1&apos;.</source>
        <translation>Es gibt keine Option „%1“.</translation>
    </message>
    <message>
        <source>There is no visibility &apos;%1&apos;; use basic, expert or guru.</source>
        <translation>Es gibt keine Sichtbarkeit „%1“; möglich sind basic, expert und guru.</translation>
    </message>
    <message>
        <source>A description is shown without a camera: use --xml alone.</source>
        <translation>Eine Beschreibung wird ohne Kamera gezeigt: --xml steht allein.</translation>
    </message>
    <message>
        <source>Print one camera a line and exit: the identifier (MAC address, or vendor and serial number), the name, the IPv4 address if it has one and the access (read-write, read-only, no-access, subnet-mismatch or unknown), with tabs between them.</source>
        <translation>Je Zeile eine Kamera ausgeben und beenden: die Kennung (MAC-Adresse oder Hersteller und Seriennummer), der Name, die IPv4-Adresse, falls vorhanden, und der Zugriff (read-write, read-only, no-access, subnet-mismatch oder unknown), durch Tabulatoren getrennt.</translation>
    </message>
    <message>
        <source>All cameras are listed: use --list-cameras alone or with --simulate.</source>
        <translation>Es werden alle Kameras aufgelistet: --list-cameras steht allein oder mit --simulate.</translation>
    </message>
    <message>
        <source>A description is shown without a camera: there is nothing to pick.</source>
        <translation>Eine Beschreibung wird ohne Kamera gezeigt: Es gibt nichts auszuwählen.</translation>
    </message>
    <message>
        <source>Say whose features to list: --simulate, --camera ID or --xml FILE.</source>
        <translation>Bitte angeben, wessen Parameter aufgelistet werden sollen: --simulate, --camera ID oder --xml FILE.</translation>
    </message>
    <message>
        <source>The main window needs a camera: use --xml alone.</source>
        <translation>Das Hauptfenster braucht eine Kamera: --xml steht allein.</translation>
    </message>
    <message>
        <source>Only the tree can be printed: use --list-features without --window.</source>
        <translation>Nur der Baum kann ausgegeben werden: --list-features steht ohne --window.</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>Diese Hilfe ausgeben und beenden.</translation>
    </message>
    <message>
        <source>The option &apos;--%1&apos; needs a value.</source>
        <translation>Die Option „--%1“ braucht einen Wert.</translation>
    </message>
    <message>
        <source>What to show first: the picker, in which the camera named by --camera is selected; the main window, with the tree beside it; the tree alone; or one of the main window&apos;s dialogs (trigger, pulse, strobe, output, color, frames, about) with the main window. All but the picker take the first usable camera without --camera. The picker when neither --simulate nor --camera nor --xml says what to show; the tree for --xml and --screenshot; otherwise the main window.</source>
        <translation>Was zuerst gezeigt wird: die Kameraauswahl (picker), in der die mit --camera genannte Kamera markiert ist; das Hauptfenster (main) mit dem Baum daneben; der Baum (tree) allein; oder einer der Dialoge des Hauptfensters (trigger, pulse, strobe, output, color, frames, about) mit dem Hauptfenster. Alle außer der Kameraauswahl nehmen ohne --camera die erste verwendbare Kamera. Ohne Angabe: die Kameraauswahl, wenn weder --simulate noch --camera noch --xml sagt, was zu zeigen ist; der Baum bei --xml und --screenshot; sonst das Hauptfenster.</translation>
    </message>
    <message>
        <source>Save a picture of the first window, or of the dialog that --window names, and exit. Needs no display.</source>
        <translation>Ein Bild des ersten Fensters oder des mit --window genannten Dialogs speichern und beenden. Braucht keine Anzeige.</translation>
    </message>
    <message>
        <source>There is no window &apos;%1&apos;; use one of: %2.</source>
        <translation>Es gibt kein Fenster „%1“; möglich sind: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; sets nothing: use --set NAME=VALUE.</source>
        <translation>„%1“ setzt nichts: bitte --set NAME=WERT verwenden.</translation>
    </message>
    <message>
        <source>Print the values of these features as the tree shows them, one a line: the name, a tab, the value. This and the following options are carried out in the order given, without a window.</source>
        <translation>Die Werte dieser Parameter so ausgeben, wie der Baum sie zeigt, je Zeile einen: der Name, ein Tabulator, der Wert. Diese und die folgenden Optionen werden in der angegebenen Reihenfolge ausgeführt, ohne Fenster.</translation>
    </message>
    <message>
        <source>Set features to such values.</source>
        <translation>Parameter auf solche Werte setzen.</translation>
    </message>
    <message>
        <source>Execute a command, and wait until it is done.</source>
        <translation>Ein Kommando ausführen und warten, bis es erledigt ist.</translation>
    </message>
    <message>
        <source>Save the settings of the camera in a file.</source>
        <translation>Die Einstellungen der Kamera in einer Datei speichern.</translation>
    </message>
    <message>
        <source>Write the settings in a file to the camera, and tell what it refuses.</source>
        <translation>Die Einstellungen in einer Datei in die Kamera schreiben und melden, was sie ablehnt.</translation>
    </message>
    <message>
        <source>Print what is not the same, one a line: the feature, the value in the file, the value in the camera, with tabs between them.</source>
        <translation>Ausgeben, was nicht gleich ist, je Zeile eines: der Parameter, der Wert in der Datei, der Wert in der Kamera, durch Tabulatoren getrennt.</translation>
    </message>
    <message>
        <source>Print what these options have to tell as one JSON document.</source>
        <translation>Was diese Optionen zu melden haben, als ein JSON-Dokument ausgeben.</translation>
    </message>
    <message>
        <source>Load settings of another model, too.</source>
        <translation>Auch Einstellungen eines anderen Modells laden.</translation>
    </message>
    <message>
        <source>Shows and changes the features of a camera, which is picked first.
Exit status: 0 success (also when no camera is picked), 1 failure (also when a camera refuses something, or is not as a file), 2 wrong usage.</source>
        <translation>Zeigt und ändert die Parameter einer Kamera, die zuerst ausgewählt wird.
Exit-Status: 0 Erfolg (auch wenn keine Kamera ausgewählt wird), 1 Fehler (auch wenn eine Kamera etwas ablehnt oder nicht wie eine Datei ist), 2 falscher Aufruf.</translation>
    </message>
    <message>
        <source>Features are read and written without a window: use --get, --set, --execute, --save, --load and --compare without --window, --screenshot and the lists.</source>
        <translation>Parameter werden ohne Fenster gelesen und geschrieben: bitte --get, --set, --execute, --save, --load und --compare ohne --window, --screenshot und die Listen verwenden.</translation>
    </message>
    <message>
        <source>Say whose features these are: --simulate, --camera ID or --xml FILE.</source>
        <translation>Bitte angeben, wessen Parameter das sind: --simulate, --camera ID oder --xml FILE.</translation>
    </message>
    <message>
        <source>There is nothing for --json to print: use it with --get, --set, --execute, --save, --load or --compare.</source>
        <translation>Für --json gibt es nichts auszugeben: bitte mit --get, --set, --execute, --save, --load oder --compare verwenden.</translation>
    </message>
    <message>
        <source>No settings are loaded: use --any-model with --load.</source>
        <translation>Es werden keine Einstellungen geladen: bitte --any-model mit --load verwenden.</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigAboutDialog</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Device Information</source>
        <translation>Geräteinformationen</translation>
    </message>
    <message>
        <source>Device Manufacturer Name:</source>
        <translation>Hersteller:</translation>
    </message>
    <message>
        <source>Device Model Name:</source>
        <translation>Modell:</translation>
    </message>
    <message>
        <source>Device Family Name:</source>
        <translation>Gerätefamilie:</translation>
    </message>
    <message>
        <source>Device Version:</source>
        <translation>Geräteversion:</translation>
    </message>
    <message>
        <source>Device Manufacturer Info:</source>
        <translation>Herstellerangaben:</translation>
    </message>
    <message>
        <source>Device Serial Number:</source>
        <translation>Seriennummer:</translation>
    </message>
    <message>
        <source>Device User Defined Name:</source>
        <translation>Benutzerdefinierter Name:</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Sensor Type:</source>
        <translation>Sensortyp:</translation>
    </message>
    <message>
        <source>RgsID:</source>
        <translation>RgsID:</translation>
    </message>
    <message>
        <source>FpgaID:</source>
        <translation>FpgaID:</translation>
    </message>
    <message>
        <source>EpcsID:</source>
        <translation>EpcsID:</translation>
    </message>
    <message>
        <source>Firmware Image:</source>
        <translation>Firmware-Abbild:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Firmware-Version:</translation>
    </message>
    <message>
        <source>Firmware Build:</source>
        <translation>Firmware-Build:</translation>
    </message>
    <message>
        <source>CustomerID:</source>
        <translation>Kunden-ID:</translation>
    </message>
    <message>
        <source>Xml Version:</source>
        <translation>XML-Version:</translation>
    </message>
    <message>
        <source>U3V Firmware Version:</source>
        <translation>U3V-Firmware-Version:</translation>
    </message>
    <message>
        <source>U3V Firmware Build Number:</source>
        <translation>U3V-Firmware-Build-Nummer:</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigColorDialog</name>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>Tracking Speed</source>
        <translation>Nachführgeschwindigkeit</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Red coef.:</source>
        <translation>Koeff. Rot:</translation>
    </message>
    <message>
        <source>4095</source>
        <translation>4095</translation>
    </message>
    <message>
        <source>Green coef.:</source>
        <translation>Koeff. Grün:</translation>
    </message>
    <message>
        <source>Blue coef.:</source>
        <translation>Koeff. Blau:</translation>
    </message>
    <message>
        <source>Manual WB Coef.</source>
        <translation>Manuelle WA-Koeff.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Unity</source>
        <translation>Auf 1</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Red unity</source>
        <translation>Rot auf 1</translation>
    </message>
    <message>
        <source>Green unity</source>
        <translation>Grün auf 1</translation>
    </message>
    <message>
        <source>Blue unity</source>
        <translation>Blau auf 1</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigFrameABDialog</name>
    <message>
        <source>Frame A/B</source>
        <translation>Bild A/B</translation>
    </message>
    <message>
        <source>Output mode:</source>
        <translation>Ausgabemodus:</translation>
    </message>
    <message>
        <source>Frame-A +</source>
        <translation>Bild A +</translation>
    </message>
    <message>
        <source>Frame-B</source>
        <translation>Bild B</translation>
    </message>
    <message>
        <source>Shutter mode:</source>
        <translation>Shutter-Modus:</translation>
    </message>
    <message>
        <source>Rolling</source>
        <translation>Rolling</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>ADC Selector:</source>
        <translation>ADC-Auswahl:</translation>
    </message>
    <message>
        <source>10 bits</source>
        <translation>10 Bit</translation>
    </message>
    <message>
        <source>12 bits</source>
        <translation>12 Bit</translation>
    </message>
    <message>
        <source>Dual Video:</source>
        <translation>Dual-Video:</translation>
    </message>
    <message>
        <source>Frame-A</source>
        <translation>Bild A</translation>
    </message>
    <message>
        <source>Exposure control</source>
        <translation>Belichtungssteuerung</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>Intern</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Clocks</source>
        <translation>Takte</translation>
    </message>
    <message>
        <source>Fixed frame period</source>
        <translation>Feste Bildperiode</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Frame line time</source>
        <translation>Zeilenzeit des Bildes</translation>
    </message>
    <message>
        <source>Frame size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Current size:</source>
        <translation>Aktuelle Größe:</translation>
    </message>
    <message>
        <source>AOI</source>
        <translation>AOI</translation>
    </message>
    <message>
        <source>Full Frame</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>QFHD</source>
        <translation>QFHD</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Subsampling</source>
        <translation>Unterabtastung</translation>
    </message>
    <message>
        <source>P:</source>
        <translation>P:</translation>
    </message>
    <message>
        <source>x M:</source>
        <translation>x M:</translation>
    </message>
    <message>
        <source>Averaging</source>
        <translation>Mittelung</translation>
    </message>
    <message>
        <source>Video amplifier</source>
        <translation>Videoverstärker</translation>
    </message>
    <message>
        <source>Analog Gain:</source>
        <translation>Analogverstärkung:</translation>
    </message>
    <message>
        <source>1x</source>
        <translation>1x</translation>
    </message>
    <message>
        <source>2x</source>
        <translation>2x</translation>
    </message>
    <message>
        <source>4x</source>
        <translation>4x</translation>
    </message>
    <message>
        <source>8x</source>
        <translation>8x</translation>
    </message>
    <message>
        <source>WDR</source>
        <translation>WDR</translation>
    </message>
    <message>
        <source>P3:</source>
        <translation>P3:</translation>
    </message>
    <message>
        <source>P2:</source>
        <translation>P2:</translation>
    </message>
    <message>
        <source>P1:</source>
        <translation>P1:</translation>
    </message>
    <message>
        <source>E1:</source>
        <translation>E1:</translation>
    </message>
    <message>
        <source>us</source>
        <translation>µs</translation>
    </message>
    <message>
        <source>E2:</source>
        <translation>E2:</translation>
    </message>
    <message>
        <source>E3:</source>
        <translation>E3:</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>[%1]:</source>
        <translation type="unfinished">[%1]:</translation>
    </message>
    <message>
        <source>The trigger is switched off.</source>
        <translation type="unfinished">Der Trigger ist ausgeschaltet.</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigMainWindow</name>
    <message>
        <source>CamConfig</source>
        <translation>CamConfig</translation>
    </message>
    <message>
        <source>Camera Information</source>
        <translation>Kamerainformationen</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>Bild A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>Bild B</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Size, frame A</source>
        <translation>Größe, Bild A</translation>
    </message>
    <message>
        <source>Size, frame B</source>
        <translation>Größe, Bild B</translation>
    </message>
    <message>
        <source>PxL</source>
        <translation>PxL</translation>
    </message>
    <message>
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message>
        <source>Frames per second, frame A</source>
        <translation>Bilder je Sekunde, Bild A</translation>
    </message>
    <message>
        <source>Frames per second, frame B</source>
        <translation>Bilder je Sekunde, Bild B</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>FTM</source>
        <translation>FTM</translation>
    </message>
    <message>
        <source>Frame time, frame A</source>
        <translation>Bildzeit, Bild A</translation>
    </message>
    <message>
        <source>Frame time, frame B</source>
        <translation>Bildzeit, Bild B</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>EXP</source>
        <translation>EXP</translation>
    </message>
    <message>
        <source>Exposure time, frame A</source>
        <translation>Belichtungszeit, Bild A</translation>
    </message>
    <message>
        <source>Exposure time, frame B</source>
        <translation>Belichtungszeit, Bild B</translation>
    </message>
    <message>
        <source>TMP</source>
        <translation>TMP</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>0C</source>
        <translation>0C</translation>
    </message>
    <message>
        <source>Frame A/B</source>
        <translation>Bild A/B</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Impuls</translation>
    </message>
    <message>
        <source>Strobe</source>
        <translation>Strobe</translation>
    </message>
    <message>
        <source>Data Out</source>
        <translation>Datenausgabe</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigMapper</name>
    <message>
        <source>Error while setting the %1 boolean value!<byte value="xd"/>
Error Code: %2</source>
        <translation type="unfinished">Fehler beim Setzen des booleschen Werts %1!<byte value="xd"/>
Fehlercode: %2</translation>
    </message>
    <message>
        <source>Error while executing the %1 command!<byte value="xd"/>
Error Code: %2</source>
        <translation type="unfinished">Fehler beim Ausführen des Befehls %1!<byte value="xd"/>
Fehlercode: %2</translation>
    </message>
    <message>
        <source>Error while setting the %1 enumeration value!<byte value="xd"/>
Error Code: %2</source>
        <translation type="unfinished">Fehler beim Setzen des Aufzählungswerts %1!<byte value="xd"/>
Fehlercode: %2</translation>
    </message>
    <message>
        <source>Error while setting the %1 integer value!<byte value="xd"/>
Error Code: %2</source>
        <translation type="unfinished">Fehler beim Setzen des Ganzzahlwerts %1!<byte value="xd"/>
Fehlercode: %2</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigOpening</name>
    <message>
        <source>Another program has it open.</source>
        <translation type="unfinished">Ein anderes Programm hat sie geöffnet.</translation>
    </message>
    <message>
        <source>It does not answer.</source>
        <translation type="unfinished">Sie antwortet nicht.</translation>
    </message>
    <message>
        <source>It did not answer in time.</source>
        <translation type="unfinished">Sie hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>Its address does not fit the network adapter&apos;s subnet.</source>
        <translation type="unfinished">Ihre Adresse passt nicht zum Subnetz des Netzwerkadapters.</translation>
    </message>
    <message>
        <source>Its description cannot be used.</source>
        <translation type="unfinished">Ihre Beschreibung kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>It refuses access.</source>
        <translation type="unfinished">Sie verweigert den Zugriff.</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigOutputDialog</name>
    <message>
        <source>Data Output</source>
        <translation>Datenausgabe</translation>
    </message>
    <message>
        <source>Camera Link Output</source>
        <translation>Camera-Link-Ausgang</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>Taps:</translation>
    </message>
    <message>
        <source>Depth:</source>
        <translation>Bittiefe:</translation>
    </message>
    <message>
        <source>Pixel Type</source>
        <translation>Pixeltyp</translation>
    </message>
    <message>
        <source>Pixel Format:</source>
        <translation>Pixelformat:</translation>
    </message>
    <message>
        <source>LUT Settings</source>
        <translation>LUT-Einstellungen</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>Korrekturen</translation>
    </message>
    <message>
        <source>DPC:</source>
        <translation>DPC:</translation>
    </message>
    <message>
        <source>HPC:</source>
        <translation>HPC:</translation>
    </message>
    <message>
        <source>Image Flip</source>
        <translation>Bildspiegelung</translation>
    </message>
    <message>
        <source>H.Mirror</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>V.Mirror</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Test Mode</source>
        <translation>Testmodus</translation>
    </message>
    <message>
        <source>Test Pattern:</source>
        <translation>Testbild:</translation>
    </message>
    <message>
        <source>DPC dynamic threshold</source>
        <translation>DPC, dynamische Schwelle</translation>
    </message>
    <message>
        <source>HPC dynamic threshold</source>
        <translation>HPC, dynamische Schwelle</translation>
    </message>
    <message>
        <source>Dyn.Thres.:</source>
        <translation type="unfinished">Dyn. Schwelle:</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigPulseDialog</name>
    <message>
        <source>Pulse Control</source>
        <translation>Impulssteuerung</translation>
    </message>
    <message>
        <source>Internal Pulse Generator</source>
        <translation>Interner Impulsgenerator</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Granularity:</source>
        <translation>Auflösung:</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>Freq. [Hz]:</source>
        <translation>Freq. [Hz]:</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Ablauf</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S, Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S, Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Number of Pulses</source>
        <translation>Anzahl der Impulse</translation>
    </message>
    <message>
        <source>Continious</source>
        <translation>Kontinuierlich</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source> [%1s]:</source>
        <translation type="unfinished"> [%1s]:</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished">Stopp</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigStrobeDialog</name>
    <message>
        <source>Strobe Control</source>
        <translation>Strobe-Steuerung</translation>
    </message>
    <message>
        <source>Strobe 1</source>
        <translation>Strobe 1</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>Reference:</source>
        <translation>Bezug:</translation>
    </message>
    <message>
        <source>Strobe 2</source>
        <translation>Strobe 2</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Out1:</source>
        <translation>Out1:</translation>
    </message>
    <message>
        <source>Out2:</source>
        <translation>Out2:</translation>
    </message>
    <message>
        <source>Delay [%1s]:</source>
        <translation type="unfinished">Verzögerung [%1s]:</translation>
    </message>
    <message>
        <source>Width [%1s]:</source>
        <translation type="unfinished">Breite [%1s]:</translation>
    </message>
    <message>
        <source>Source of output %1</source>
        <translation type="unfinished">Quelle des Ausgangs %1</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigTriggerDialog</name>
    <message>
        <source>Trigger Control</source>
        <translation>Triggersteuerung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Trigger Source:</source>
        <translation>Triggerquelle:</translation>
    </message>
    <message>
        <source>Edge:</source>
        <translation>Flanke:</translation>
    </message>
    <message>
        <source>Debounce:</source>
        <translation>Entprellung:</translation>
    </message>
    <message>
        <source>Software
Trigger</source>
        <translation>Software-
Trigger</translation>
    </message>
</context>
<context>
    <name>OrvCameraSelectorDialog</name>
    <message>
        <source>Select camera</source>
        <translation>Kamera auswählen</translation>
    </message>
    <message>
        <source>&amp;Interface info</source>
        <translation>&amp;Schnittstelle</translation>
    </message>
    <message>
        <source>&amp;Device info</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP-Adresse setzen</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Interface info</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>Device info</source>
        <translation>Gerät</translation>
    </message>
</context>
<context>
    <name>OrvCameraSettings</name>
    <message>
        <source>The camera does not have it.</source>
        <translation>Die Kamera hat ihn nicht.</translation>
    </message>
</context>
<context>
    <name>OrvFeatureBrowser</name>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation type="unfinished">Suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished">Suchen</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished">Menü</translation>
    </message>
    <message>
        <source>Show Only Changed</source>
        <translation type="unfinished">Nur Geändertes zeigen</translation>
    </message>
    <message>
        <source>Put Back All</source>
        <translation type="unfinished">Alles zurücksetzen</translation>
    </message>
    <message>
        <source>Search in Descriptions</source>
        <translation type="unfinished">In Beschreibungen suchen</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation type="unfinished">Nichts gefunden</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation type="unfinished">%1 gefunden</translation>
    </message>
    <message>
        <source>%1 more at level %2</source>
        <translation type="unfinished">%1 weitere auf Stufe %2</translation>
    </message>
    <message>
        <source>Shows them</source>
        <translation type="unfinished">Zeigt sie</translation>
    </message>
</context>
<context>
    <name>OrvGui::Microseconds</name>
    <message>
        <source>%1s</source>
        <translation type="unfinished">%1s</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfig</name>
    <message>
        <source>Select a device</source>
        <translation>Gerät auswählen</translation>
    </message>
    <message>
        <source>The camera %1 cannot be opened!</source>
        <translation>Die Kamera %1 kann nicht geöffnet werden!</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>The camera system cannot be started.</source>
        <translation>Das Kamerasystem kann nicht gestartet werden.</translation>
    </message>
    <message>
        <source>This program has no camera library: OrvCam_GetSystem or OrvCam_CreateDevice is missing.</source>
        <translation>Diesem Programm fehlt die Kamerabibliothek: OrvCam_GetSystem oder OrvCam_CreateDevice ist nicht vorhanden.</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigFrameABDialog</name>
    <message>
        <source>Dual Video
Line Time [pclk]:</source>
        <translation>Dual-Video
Zeilenzeit [pclk]:</translation>
    </message>
    <message>
        <source>Exposure Time </source>
        <translation>Belichtungszeit </translation>
    </message>
    <message>
        <source>Line Time [pclk]:</source>
        <translation>Zeilenzeit [pclk]:</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>Versatz X:</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>Versatz Y:</translation>
    </message>
    <message>
        <source>Width: </source>
        <translation>Breite: </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Digital Gain:</source>
        <translation>Digitalverstärkung:</translation>
    </message>
    <message>
        <source>Black Level:</source>
        <translation>Schwarzwert:</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCameraSelectorDialog</name>
    <message>
        <source>Set IP address</source>
        <translation>IP-Adresse setzen</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Neu suchen</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Anzeigename</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Access status</source>
        <translation>Zugriffsstatus</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>Netzmaske</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>ReadWrite</source>
        <translation>Lesen und Schreiben</translation>
    </message>
    <message>
        <source>ReadOnly</source>
        <translation>Nur Lesen</translation>
    </message>
    <message>
        <source>NO ACCESS</source>
        <translation>KEIN ZUGRIFF</translation>
    </message>
    <message>
        <source>IP Subnet Mismatch</source>
        <translation>IP-Subnetz passt nicht</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>USB3 Vision</source>
        <translation>USB3 Vision</translation>
    </message>
    <message>
        <source>GigE Vision</source>
        <translation>GigE Vision</translation>
    </message>
    <message>
        <source>CameraLink</source>
        <translation>CameraLink</translation>
    </message>
    <message>
        <source>CoaXPress</source>
        <translation>CoaXPress</translation>
    </message>
    <message>
        <source>HD-SDI</source>
        <translation>HD-SDI</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP-Adresse setzen</translation>
    </message>
    <message>
        <source>Can&apos;t set IP address</source>
        <translation>Die IP-Adresse kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>IP Configuration Warning</source>
        <translation>Warnung zur IP-Konfiguration</translation>
    </message>
    <message>
        <source>Specified IP Configuraion is not correct, camera may become undiscoverable
Press OK to skip the IP Configuration, or press Ignore to confirm</source>
        <translation>Die angegebene IP-Konfiguration ist nicht richtig, die Kamera ist danach vielleicht nicht mehr auffindbar
OK überspringt die IP-Konfiguration, Ignorieren bestätigt sie</translation>
    </message>
    <message>
        <source>Waiting for the camera to come back with its new address...</source>
        <translation>Warten, bis die Kamera sich mit ihrer neuen Adresse meldet …</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCameraSettings</name>
    <message>
        <source>There is no camera.</source>
        <translation>Es gibt keine Kamera.</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvSettingsMenu</name>
    <message>
        <source>Save Settings...</source>
        <translation>Einstellungen speichern …</translation>
    </message>
    <message>
        <source>Load Settings...</source>
        <translation>Einstellungen laden …</translation>
    </message>
    <message>
        <source>Put Settings Back</source>
        <translation>Einstellungen zurückstellen</translation>
    </message>
    <message>
        <source>Compare with File...</source>
        <translation>Mit Datei vergleichen …</translation>
    </message>
    <message>
        <source>User Sets</source>
        <translation>Benutzersätze</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>Load Settings</source>
        <translation>Einstellungen laden</translation>
    </message>
    <message>
        <source>Compare with File</source>
        <translation>Mit Datei vergleichen</translation>
    </message>
    <message>
        <source>The camera is gone. Not everything that was begun has been done.</source>
        <translation>Die Kamera ist weg. Nicht alles Begonnene ist erledigt.</translation>
    </message>
    <message>
        <source>Camera settings (*.pfs)</source>
        <translation>Kameraeinstellungen (*.pfs)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Reading the settings of the camera...</source>
        <translation>Die Einstellungen der Kamera werden gelesen …</translation>
    </message>
    <message>
        <source>The settings are not saved. %1</source>
        <translation>Die Einstellungen sind nicht gespeichert. %1</translation>
    </message>
    <message>
        <source>Settings saved in %1: %2.</source>
        <translation>In %1 gespeicherte Einstellungen: %2.</translation>
    </message>
    <message>
        <source>These are not:</source>
        <translation>Diese nicht:</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>The file has the settings of another model: %1. Much of it may not fit. Do you want to see what would change?</source>
        <translation>Die Datei hat die Einstellungen eines anderen Modells: %1. Vieles davon passt vielleicht nicht. Möchten Sie sehen, was sich ändern würde?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>The camera has all values of %1 already.</source>
        <translation>Die Kamera hat alle Werte von %1 bereits.</translation>
    </message>
    <message>
        <source>This is what %1 changes:</source>
        <translation>Das ändert %1:</translation>
    </message>
    <message>
        <source>(The last rows are of features that the camera does not have.)</source>
        <translation>(Die letzten Zeilen sind von Parametern, die die Kamera nicht hat.)</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Writing the settings to the camera...</source>
        <translation>Die Einstellungen werden in die Kamera geschrieben …</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Settings that the camera has now: %1.</source>
        <translation>Einstellungen, die die Kamera jetzt hat: %1.</translation>
    </message>
    <message>
        <source>The camera does not have it.</source>
        <translation>Die Kamera hat ihn nicht.</translation>
    </message>
    <message>
        <source>It could not be put back.</source>
        <translation>Er konnte nicht zurückgestellt werden.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Zurückstellen</translation>
    </message>
    <message>
        <source>Gives the camera the values that it had before</source>
        <translation>Gibt der Kamera die Werte, die sie vorher hatte</translation>
    </message>
    <message>
        <source>Putting the settings back...</source>
        <translation>Die Einstellungen werden zurückgestellt …</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>Einstellungen vergleichen</translation>
    </message>
    <message>
        <source>Compare with Another File...</source>
        <translation>Mit anderer Datei vergleichen …</translation>
    </message>
    <message>
        <source>Compare with Another File</source>
        <translation>Mit anderer Datei vergleichen</translation>
    </message>
    <message>
        <source>The camera has all values of %1.</source>
        <translation>Die Kamera hat alle Werte von %1.</translation>
    </message>
    <message>
        <source>This is not the same in %1 and in the camera:</source>
        <translation>Das ist in %1 und in der Kamera nicht gleich:</translation>
    </message>
    <message>
        <source>%1 and %2 have the same values.</source>
        <translation>%1 und %2 haben die gleichen Werte.</translation>
    </message>
    <message>
        <source>This is not the same in %1 and in %2:</source>
        <translation>Das ist in %1 und in %2 nicht gleich:</translation>
    </message>
    <message>
        <source>Load %1? The present settings of the camera are lost.</source>
        <translation>%1 laden? Die jetzigen Einstellungen der Kamera gehen verloren.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save the present settings of the camera in %1? What is there is lost.</source>
        <translation>Die jetzigen Einstellungen der Kamera in %1 speichern? Was dort ist, geht verloren.</translation>
    </message>
    <message>
        <source>Start with</source>
        <translation>Starten mit</translation>
    </message>
    <message>
        <source>The camera is busy with its user sets...</source>
        <translation>Die Kamera arbeitet an ihren Benutzersätzen …</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The output failed.</source>
        <translation>Die Ausgabe ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The picture &apos;%1&apos; cannot be written.</source>
        <translation>Das Bild „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The camera &apos;%1&apos; is gone.</source>
        <translation>Die Kamera „%1“ ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The camera system cannot be started.</source>
        <translation>Das Kamerasystem kann nicht gestartet werden.</translation>
    </message>
    <message>
        <source>No window can be shown: %1</source>
        <translation>Es kann kein Fenster gezeigt werden: %1</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>Es wurde keine Kamera gefunden.</translation>
    </message>
</context>
<context>
    <name>QtOrvSpinBox</name>
    <message>
        <source>Show a slider</source>
        <translation>Schieberegler anzeigen</translation>
    </message>
</context>
<context>
    <name>SafeDelegate</name>
    <message>
        <source>%1 (no entry is available)</source>
        <translation type="unfinished">%1 (kein Eintrag ist verfügbar)</translation>
    </message>
</context>
<context>
    <name>SelectorTable</name>
    <message>
        <source>Values by %1</source>
        <translation type="unfinished">Werte nach %1</translation>
    </message>
    <message>
        <source>Read Again</source>
        <translation type="unfinished">Neu lesen</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation type="unfinished">Wird gelesen …</translation>
    </message>
    <message>
        <source>A value that you enter is written at once.</source>
        <translation type="unfinished">Ein eingegebener Wert wird sofort geschrieben.</translation>
    </message>
    <message>
        <source>The camera cannot be read: %1</source>
        <translation type="unfinished">Die Kamera kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation type="unfinished">Abgelehnt: %1</translation>
    </message>
</context>
<context>
    <name>SetIpDialog</name>
    <message>
        <source>Set IP Address</source>
        <translation>IP-Adresse setzen</translation>
    </message>
    <message>
        <source>Network Adapter IP Configuration</source>
        <translation>IP-Konfiguration des Netzwerkadapters</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Subnet Mask       </source>
        <translation>Subnetzmaske       </translation>
    </message>
    <message>
        <source>Camera IP Configuration</source>
        <translation>IP-Konfiguration der Kamera</translation>
    </message>
    <message>
        <source>IP &amp;Address</source>
        <translation>IP-&amp;Adresse</translation>
    </message>
    <message>
        <source>&amp;Subnet Mask</source>
        <translation>&amp;Subnetzmaske</translation>
    </message>
    <message>
        <source>Default &amp;Gateway</source>
        <translation>Standard-&amp;Gateway</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Subnet mask mismatch!</source>
        <translation>Subnetzmaske passt nicht!</translation>
    </message>
    <message>
        <source>Subnet IP mismatch!</source>
        <translation>IP-Subnetz passt nicht!</translation>
    </message>
    <message>
        <source>Incorrect IP address!</source>
        <translation>Falsche IP-Adresse!</translation>
    </message>
    <message>
        <source>IP Configuration OK</source>
        <translation>IP-Konfiguration in Ordnung</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The file &apos;%1&apos; is of another model: %2.</source>
        <translation type="unfinished">Die Datei „%1“ ist von einem anderen Modell: %2.</translation>
    </message>
    <message>
        <source>The file is too large for settings of a camera.</source>
        <translation type="unfinished">Die Datei ist zu groß für Einstellungen einer Kamera.</translation>
    </message>
    <message>
        <source>The file is cut off: its last line has no end.</source>
        <translation type="unfinished">Die Datei ist abgeschnitten: Ihre letzte Zeile hat kein Ende.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation type="unfinished">Zeile %1: %2</translation>
    </message>
    <message>
        <source>Line 1: This is no file of camera settings.</source>
        <translation type="unfinished">Zeile 1: Das ist keine Datei mit Kameraeinstellungen.</translation>
    </message>
    <message>
        <source>This is no text in UTF-8.</source>
        <translation type="unfinished">Das ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no name of a feature.</source>
        <translation type="unfinished">„%1“ ist kein Name eines Parameters.</translation>
    </message>
    <message>
        <source>There is no value for &apos;%1&apos;.</source>
        <translation type="unfinished">Es gibt keinen Wert für „%1“.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be read. %2</source>
        <translation type="unfinished">Die Datei „%1“ kann nicht gelesen werden. %2</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be written. %2</source>
        <translation type="unfinished">Die Datei „%1“ kann nicht geschrieben werden. %2</translation>
    </message>
</context>
<context>
    <name>SettingsJob</name>
    <message>
        <source>Camera Settings</source>
        <translation type="unfinished">Kameraeinstellungen</translation>
    </message>
</context>
<context>
    <name>SettingsReader</name>
    <message>
        <source>The camera has no values that are meant to be saved.</source>
        <translation type="unfinished">Die Kamera hat keine Werte, die gespeichert werden sollen.</translation>
    </message>
    <message>
        <source>The text has control characters.</source>
        <translation type="unfinished">Der Text hat Steuerzeichen.</translation>
    </message>
</context>
<context>
    <name>SettingsTable</name>
    <message>
        <source>(none)</source>
        <translation type="unfinished">(nicht vorhanden)</translation>
    </message>
</context>
<context>
    <name>SettingsTableDialog</name>
    <message>
        <source>Copy</source>
        <translation type="unfinished">Kopieren</translation>
    </message>
</context>
<context>
    <name>SettingsWriter</name>
    <message>
        <source>The camera has made it %1.</source>
        <translation type="unfinished">Die Kamera hat daraus %1 gemacht.</translation>
    </message>
</context>
<context>
    <name>UndoActions</name>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished">Wiederherstellen</translation>
    </message>
    <message>
        <source>The camera refuses this step: %1</source>
        <translation type="unfinished">Die Kamera lehnt diesen Schritt ab: %1</translation>
    </message>
    <message>
        <source>Skip This Step</source>
        <translation type="unfinished">Diesen Schritt überspringen</translation>
    </message>
</context>
<context>
    <name>UsedAddresses</name>
    <message>
        <source>The address %1 is that of the network adapter %2.</source>
        <translation>Die Adresse %1 ist die des Netzwerkadapters %2.</translation>
    </message>
    <message>
        <source>The camera %2 has the address %1.</source>
        <translation>Die Kamera %2 hat die Adresse %1.</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it begins with 0.</source>
        <translation>Keine Kamera kann die Adresse %1 haben: Sie beginnt mit 0.</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it is a loopback address.</source>
        <translation>Keine Kamera kann die Adresse %1 haben: Sie ist eine Loopback-Adresse.</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it is a multicast address.</source>
        <translation>Keine Kamera kann die Adresse %1 haben: Sie ist eine Multicast-Adresse.</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it is a broadcast address.</source>
        <translation>Keine Kamera kann die Adresse %1 haben: Sie ist eine Broadcast-Adresse.</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it is reserved.</source>
        <translation>Keine Kamera kann die Adresse %1 haben: Sie ist reserviert.</translation>
    </message>
    <message>
        <source>No camera can have the address %1: it is that of the subnet.</source>
        <translation>Keine Kamera kann die Adresse %1 haben: Sie ist die des Subnetzes.</translation>
    </message>
</context>
</TS>
