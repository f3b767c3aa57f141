<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CatalogModel</name>
    <message>
        <source>Directory</source>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorEdit</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Wählen...</translation>
    </message>
    <message>
        <source>Choose the color in a dialog</source>
        <translation>Wählt die Farbe in einem Dialog</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>&amp;Decadic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hexa</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>CommonBoxes</name>
    <message>
        <source>&quot; already exists.

Do you want to overwrite it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
There is no such file.</source>
        <translation>%1
Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>%1
The file is not a program.</source>
        <translation>%1
Die Datei ist kein Programm.</translation>
    </message>
    <message>
        <source>%1
The system could not start it.</source>
        <translation>%1
Das System konnte es nicht starten.</translation>
    </message>
    <message>
        <source>Error starting program: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program cannot found registry entry of Kesh Origins. You will have to specify path to the game executable in the Settings window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No browser was found to show the help:
</source>
        <translation>Es wurde kein Browser gefunden, der die Hilfe zeigt:
</translation>
    </message>
    <message>
        <source>Help is not installed:
</source>
        <translation>Die Hilfe ist nicht installiert:
</translation>
    </message>
</context>
<context>
    <name>EntryDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportFile</name>
    <message>
        <source>Error in Export file: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t know how to export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error opening file %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Speichere %1</translation>
    </message>
</context>
<context>
    <name>ExternalViewer</name>
    <message>
        <source>Error starting external 3D viewer: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>%1 kann nicht geschrieben werden (%2)</translation>
    </message>
    <message>
        <source>You didn&apos;t specified path to external 3D viewer.
Go to Settings and set it up.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilesModel</name>
    <message>
        <source>VFS name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Real name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GoToAction</name>
    <message>
        <source>Go to</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Show the object that is named here (also by a click with Ctrl)</source>
        <translation>Zeigt das Objekt, das hier genannt ist (auch durch einen Klick mit Strg)</translation>
    </message>
    <message>
        <source>Go to ...</source>
        <translation>Gehe zu ...</translation>
    </message>
    <message>
        <source>Go to %1</source>
        <translation>Gehe zu %1</translation>
    </message>
    <message>
        <source>Go to %1: %2</source>
        <translation>Gehe zu %1: %2</translation>
    </message>
</context>
<context>
    <name>JobBoxes</name>
    <message>
        <source>Field %1</source>
        <translation>Feld %1</translation>
    </message>
    <message>
        <source>Stored: &quot;%1&quot;</source>
        <translation>Gespeichert: „%1“</translation>
    </message>
    <message>
        <source>This version of the file does not have the field. &quot;%1&quot; (field %2) stands here in its stead, and is changed.</source>
        <translation>Diese Version der Datei hat das Feld nicht. An seiner Stelle steht hier „%1“ (Feld %2) und wird geändert.</translation>
    </message>
</context>
<context>
    <name>JobControls</name>
    <message>
        <source>Race</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corporation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ship Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variant Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fighter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Civilian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Military</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is owner&apos;s sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is core sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has shipyard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has owner&apos;s stations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not enemy sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is border sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert sector flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create in shipyard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create in gate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create inside sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create outside sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create NULL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is invincible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is hidden pirate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destroy OOS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rebuild in new sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fly average speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fighter Drones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mass Driver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PSG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ion Disruptor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flak</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IH</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mining las.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tug</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair las.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impulse Ray Emmiter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Particle Accelerator Cannon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High Energy Plasma Thrower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photon Pulse Cannon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kyon Emmiter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ship name</source>
        <translation>Schiffsname</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Race of the ship</source>
        <translation>Rasse des Schiffs</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Classification</source>
        <translation>Einordnung</translation>
    </message>
    <message>
        <source>Sector</source>
        <translation>Sektor</translation>
    </message>
    <message>
        <source>Creation</source>
        <translation>Entstehung</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>Verschiedenes</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Forbid</source>
        <translation>Verboten</translation>
    </message>
    <message>
        <source>Race of the owner</source>
        <translation>Rasse des Besitzers</translation>
    </message>
</context>
<context>
    <name>JobShipsModel</name>
    <message>
        <source>[empty]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation>%1 (nicht gefunden)</translation>
    </message>
</context>
<context>
    <name>JobSummary</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>bis zu %1</translation>
    </message>
    <message>
        <source>%1 in a sector</source>
        <translation>%1 in einem Sektor</translation>
    </message>
    <message>
        <source>ships of no class</source>
        <translation>Schiffe ohne Klasse</translation>
    </message>
    <message>
        <source>any class</source>
        <translation>jede Klasse</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>any race</source>
        <translation>jeder Rasse</translation>
    </message>
    <message>
        <source>not in sectors: %1</source>
        <translation>nicht in Sektoren: %1</translation>
    </message>
    <message>
        <source>in sectors: %1</source>
        <translation>in Sektoren: %1</translation>
    </message>
    <message>
        <source>sector %1, %2</source>
        <translation>Sektor %1, %2</translation>
    </message>
    <message>
        <source>shipyard</source>
        <translation>Werft</translation>
    </message>
    <message>
        <source>gate</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>inside sector</source>
        <translation>im Sektor</translation>
    </message>
    <message>
        <source>outside sector</source>
        <translation>außerhalb des Sektors</translation>
    </message>
    <message>
        <source>created at: %1</source>
        <translation>entsteht: %1</translation>
    </message>
    <message>
        <source>owned by %1</source>
        <translation>gehört %1</translation>
    </message>
    <message>
        <source>chance docked %1</source>
        <translation>Chance angedockt %1</translation>
    </message>
    <message>
        <source>respawns after %1</source>
        <translation>kehrt wieder nach %1</translation>
    </message>
</context>
<context>
    <name>LauncherItems</name>
    <message>
        <source>TXT Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kesh Outfitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoadKeshData</name>
    <message>
        <source>Warning:
Error loading active mod &quot;%1&quot;.
This is not fatal. Maybe your &quot;Directory with data&quot; is different from real Kesh path?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error loading resources: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Object descriptions and names may be unavailable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - scanning Kesh data files. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - Loading resource strings. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error reloading files: </source>
        <translation>Fehler beim Neuladen der Dateien: </translation>
    </message>
</context>
<context>
    <name>LornFileDialog</name>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Catalog &quot;%1&quot; does not exist.

Do you want to create it?</source>
        <translation>Den Katalog „%1“ gibt es nicht.

Soll er angelegt werden?</translation>
    </message>
    <message>
        <source>Error opening file </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source> - Starting up...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error starting program: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Navigator</name>
    <message>
        <source>The game has no file &quot;%1&quot;.</source>
        <translation>Das Spiel hat keine Datei „%1“.</translation>
    </message>
    <message>
        <source>There is no ware &quot;%1&quot;.</source>
        <translation>Es gibt keine Ware „%1“.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no such object.</source>
        <translation>Die Datei „%1“ hat kein solches Objekt.</translation>
    </message>
</context>
<context>
    <name>ObjectEditor</name>
    <message>
        <source>This type of file cannot be exported.</source>
        <translation>Dateien dieser Art lassen sich nicht exportieren.</translation>
    </message>
</context>
<context>
    <name>OfferRecovery</name>
    <message>
        <source>Changes of file %1 were not saved when the program ended the last time.
Changes: %2, the last of them at %3.</source>
        <translation>Änderungen der Datei %1 waren nicht gespeichert, als das Programm zuletzt endete.
Änderungen: %2, die letzte am %3.</translation>
    </message>
    <message>
        <source>The file is not as it was then, so the changes cannot be brought back.</source>
        <translation>Die Datei ist nicht mehr wie damals, darum lassen sich die Änderungen nicht zurückholen.</translation>
    </message>
    <message>
        <source>Do you want to drop them?</source>
        <translation>Möchten Sie sie verwerfen?</translation>
    </message>
    <message>
        <source>Do you want to bring them back?</source>
        <translation>Möchten Sie sie zurückholen?</translation>
    </message>
    <message>
        <source>Press Yes to open the file with the changes.</source>
        <translation>Ja öffnet die Datei mit den Änderungen.</translation>
    </message>
    <message>
        <source>Press No to drop them.</source>
        <translation>Nein verwirft sie.</translation>
    </message>
    <message>
        <source>Press Cancel to be asked at the next start.</source>
        <translation>Abbrechen fragt beim nächsten Start wieder.</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[offset]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyView</name>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordDataModel</name>
    <message>
        <source>[off]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordListModel</name>
    <message>
        <source>Name/ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordPanel</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error in key handler: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordUndo</name>
    <message>
        <source>change of %1</source>
        <translation>Änderung an %1</translation>
    </message>
</context>
<context>
    <name>RecoveryJournal</name>
    <message>
        <source>Changes cannot be noted for recovery in &quot;%1&quot;: %2. If the program is interrupted, what is not saved is lost.</source>
        <translation>Änderungen lassen sich in &quot;%1&quot; nicht zur Wiederherstellung festhalten: %2. Wird das Programm unterbrochen, geht verloren, was nicht gespeichert ist.</translation>
    </message>
    <message>
        <source>no file can be made there</source>
        <translation>dort lässt sich keine Datei anlegen</translation>
    </message>
</context>
<context>
    <name>ShipGunTab</name>
    <message>
        <source>Gun groups</source>
        <translation>Waffengruppen</translation>
    </message>
    <message>
        <source>[offset]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Init gun idx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># of guns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gun entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guns in turret</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debug View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the guns without their offsets</source>
        <translation>Die Waffen ohne ihre Stellen zeigen</translation>
    </message>
    <message>
        <source>Show the guns with their offsets in the record</source>
        <translation>Die Waffen mit ihren Stellen im Datensatz zeigen</translation>
    </message>
    <message>
        <source>Gun Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gun Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path Idx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body ID (2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path Idx (2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body ID (1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P Idx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error loading ship data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ucShip-&gt;ShowGuns: Error while displaying gun data:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no turrets on this ship. You must first create a turret with Add Turret button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can only delete the last gun in the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you really want to delete the gun idx=%1?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShipTurretTab</name>
    <message>
        <source>Turrets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[offset]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turr. Idx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path Idx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cockpits (turrets)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cockpit idx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cockpit name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To modify turrets, open TCockpits file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ucShip-&gt;ShowTurrets: Error while displaying turret data: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turrets descriptor: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[cockpit not found]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum number of turrets is %1 (+ front gun)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can only delete the last turret in the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you really want to delete the turret idx=%1 (position=%2) ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TFileDialog</name>
    <message>
        <source>Kesh T files (*.txt; *.pck; *.cat)|*.txt;*.pck;*.cat|Lorn Catalogs (*.cat)|*.cat|All files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kesh T files - plain (*.txt)|*.txt|Kesh T files - compressed (*.pck)|*.pck|Kesh Catalogs (*.cat)|*.cat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TXT Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TurretPlan</name>
    <message>
        <source>front cockpit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plan of the turrets</source>
        <translation>Plan der Türme</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No turrets.</source>
        <translation>Keine Türme.</translation>
    </message>
    <message>
        <source>Guns: %1.</source>
        <translation>Waffen: %1.</translation>
    </message>
    <message>
        <source> Selected: %1.</source>
        <translation> Ausgewählt: %1.</translation>
    </message>
    <message>
        <source>%1: no turret</source>
        <translation>%1: kein Turm</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Von oben</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Von der Seite</translation>
    </message>
    <message>
        <source>%1+</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ValueEntry</name>
    <message>
        <source>Value holds a character that this file cannot hold.</source>
        <translation>Der Wert enthält ein Zeichen, das in dieser Datei nicht stehen kann.</translation>
    </message>
    <message>
        <source>Value cannot contain semicolon (;)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value cannot contain slash (/)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Float</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>String</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This object ID is already used.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WareFlags</name>
    <message>
        <source>PAC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set on Particle Accelerator Cannon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beam</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beam weapon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zig zag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set on Ion Disruptor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Areal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set on Alpha Phased Shockwave Generator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disables spaceflies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore shields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use ammo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Will require ammo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repairs hull</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flak</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reduce speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ashfall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drain wpns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dmg over time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fragmentation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fire delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can be fired without lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dumb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No guidance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi fragment warhead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Heatseeker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi warhaed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every warhead can track different target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proximity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detonates in profimity of target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Man. detonation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can be manually detonated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firestorm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Man. guided</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WareListViewer</name>
    <message>
        <source>Ware list %1 not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wares of the list</source>
        <translation>Waren der Liste</translation>
    </message>
</context>
<context>
    <name>WeaponLists</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove the selected weapons</source>
        <translation>Die ausgewählten Waffen entfernen</translation>
    </message>
    <message>
        <source>Add the selected weapons</source>
        <translation>Die ausgewählten Waffen hinzufügen</translation>
    </message>
</context>
<context>
    <name>clsTFile</name>
    <message>
        <source>There is no object to save.</source>
        <translation>Es gibt kein Objekt zum Speichern.</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>files, packed files and catalogs</source>
        <translation>Dateien, gepackte Dateien und Kataloge</translation>
    </message>
    <message>
        <source>merged view of the game&apos;s files</source>
        <translation>gemeinsame Sicht auf die Dateien des Spiels</translation>
    </message>
    <message>
        <source>texts of the game&apos;s files</source>
        <translation>Texte in den Dateien des Spiels</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>windows and platform services</source>
        <translation>Fenster und Dienste des Systems</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>older packed files</source>
        <translation>ältere gepackte Dateien</translation>
    </message>
    <message>
        <source>newer packed files</source>
        <translation>neuere gepackte Dateien</translation>
    </message>
    <message>
        <source>Made by the Kesh Editor authors. Pictures: our own.</source>
        <translation>Von den Autoren des Kesh Editors. Bilder: eigene.</translation>
    </message>
    <message>
        <source>Libraries and licences</source>
        <translation>Bibliotheken und Lizenzen</translation>
    </message>
    <message>
        <source>Free software under the MIT licence.</source>
        <translation>Freie Software unter der MIT-Lizenz.</translation>
    </message>
</context>
<context>
    <name>frmCATDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File &amp;name</source>
        <translation>Datei&amp;name</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>Catalog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up one level</source>
        <translation>Eine Ebene nach oben</translation>
    </message>
    <message>
        <source>Up out of the catalog</source>
        <translation>Aus dem Katalog heraus</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Catalog </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look &amp;in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as &amp;type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files of &amp;type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error opening file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a name in a catalog.</source>
        <translation>„%1“ kann kein Name in einem Katalog sein.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Sort by &amp;name</source>
        <translation>Nach &amp;Namen sortieren</translation>
    </message>
    <message>
        <source>Sort by &amp;type</source>
        <translation>Nach &amp;Typ sortieren</translation>
    </message>
</context>
<context>
    <name>frmColorEdit</name>
    <message>
        <source>Value Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entered value is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmEdit</name>
    <message>
        <source>Value Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translated value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the value with its unit instead of as it is stored</source>
        <translation>Zeigt den Wert mit seiner Einheit statt so, wie er gespeichert ist</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error loading property.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (offset %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> [%1]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmFiles</name>
    <message>
        <source>Loaded Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts of a name with * and ?, level by level: types\TShips*. Enter lists the files.</source>
        <translation>Teile eines Namens mit * und ?, Ebene für Ebene: types\TShips*. Enter listet die Dateien.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>&amp;Active mod file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(none)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listing... Files: %1</source>
        <translation>Wird aufgelistet... Dateien: %1</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>Dateien: %1</translation>
    </message>
    <message>
        <source>Sort by &amp;VFS name</source>
        <translation>Nach &amp;VFS-Name sortieren</translation>
    </message>
    <message>
        <source>Sort by &amp;real name</source>
        <translation>Nach &amp;wirklichem Namen sortieren</translation>
    </message>
</context>
<context>
    <name>frmFind</name>
    <message>
        <source>&amp;Find Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Match &amp;whole words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find w&amp;hat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No more occurencies found.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmGunEdit</name>
    <message>
        <source>Gun Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gun Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primary Body ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primary Path index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secondary Body ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secondary Path index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count not specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count must be whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primary Body ID not specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primary Path index not specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primary Path index must be whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secondary Path index must be whole number</source>
        <translation>Der zweite „Path index“ muss eine ganze Zahl sein</translation>
    </message>
    <message>
        <source>Count cannot be negative</source>
        <translation>Die Anzahl darf nicht negativ sein</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;loaded files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reload files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kesh Editor was unable to find Kesh path in your registry. Do you want to set it now manually?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid command line parameters.

Usage: [file type] &lt;file name&gt;
File type:
-TFile - TFiles
-Map - galaxy map
-xml - xml text file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Galaxy Editor is not available in this version.</source>
        <translation>Der Galaxy Editor ist in dieser Version nicht verfügbar.</translation>
    </message>
    <message>
        <source>The Text Resource Editor is not available in this version.</source>
        <translation>Der Text Resource Editor ist in dieser Version nicht verfügbar.</translation>
    </message>
    <message>
        <source>Don&apos;t know how to open file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Auto Arrange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSettings</name>
    <message>
        <source>Executable Files (*.exe)|*.exe|All Files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path to Kesh &amp;executable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the game&apos;s program</source>
        <translation>Das Programm des Spiels wählen</translation>
    </message>
    <message>
        <source>&amp;Program to run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the program</source>
        <translation>Das Programm wählen</translation>
    </message>
    <message>
        <source>&amp;Path to 3D viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the viewer&apos;s program</source>
        <translation>Das Programm des Betrachters wählen</translation>
    </message>
    <message>
        <source>&amp;Direcotory with data files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the game&apos;s directory</source>
        <translation>Das Verzeichnis des Spiels wählen</translation>
    </message>
    <message>
        <source>       &amp;Load object descriptions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Direct&amp;Draw (better performance)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use double &amp;buffer (no flickering)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Viewer supports LornFD paths (catalog.cat::file.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Common</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3D Viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* You can rename the icon by right clicking it and selecting Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use this language &amp;ID for descriptions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* You can write the code  directly if your language is not listed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Command line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use %1 for file name, %2 for actual T file data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Select directory containing game data files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading resource strings...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmTXTEditor</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Race</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the records by the names of the text resources</source>
        <translation>Listet die Datensätze mit den Namen aus den Textressourcen</translation>
    </message>
    <message>
        <source>List the records by their race</source>
        <translation>Listet die Datensätze mit ihrem Volk</translation>
    </message>
    <message>
        <source>List the records by their ID</source>
        <translation>Listet die Datensätze mit ihrer ID</translation>
    </message>
    <message>
        <source>Sorted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by the last value, mostly the ID, instead of the order in the file</source>
        <translation>Sortiert nach dem letzten Wert, meist der ID, statt nach der Reihenfolge in der Datei</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>Raw data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ship info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields of the record</source>
        <translation>Felder des Datensatzes</translation>
    </message>
    <message>
        <source>Index of the first field to watch</source>
        <translation>Index des ersten beobachteten Feldes</translation>
    </message>
    <message>
        <source>Index of the last field to watch</source>
        <translation>Index des letzten beobachteten Feldes</translation>
    </message>
    <message>
        <source>Watch from offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watched fields</source>
        <translation>Beobachtete Felder</translation>
    </message>
    <message>
        <source>Error in TXT Editor Init: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a T file</source>
        <translation>Öffnet eine T-Datei</translation>
    </message>
    <message>
        <source>Open from &amp;VFS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a T file of the merged game data</source>
        <translation>Öffnet eine T-Datei aus den gesamten Spieldaten</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the file</source>
        <translation>Speichert die Datei</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export the objects as text</source>
        <translation>Exportiert die Objekte als Text</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Schließt dieses Fenster</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>Nimmt die letzte Änderung zurück</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Make the change again</source>
        <translation>Macht die Änderung noch einmal</translation>
    </message>
    <message>
        <source>Edit &amp;value...</source>
        <translation>Wert &amp;bearbeiten...</translation>
    </message>
    <message>
        <source>Change the selected field</source>
        <translation>Ändert das gewählte Feld</translation>
    </message>
    <message>
        <source>Run the &amp;game</source>
        <translation>&amp;Spiel starten</translation>
    </message>
    <message>
        <source>Run the game</source>
        <translation>Startet das Spiel</translation>
    </message>
    <message>
        <source>&amp;Text resources</source>
        <translation>&amp;Textressourcen</translation>
    </message>
    <message>
        <source>Show the Text Resource Editor</source>
        <translation>Den Text Resource Editor öffnen</translation>
    </message>
    <message>
        <source>&amp;Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the help</source>
        <translation>Zeigt die Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Über dieses Programm</translation>
    </message>
    <message>
        <source>&amp;Recent files</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Text Resource Editor is not available in this version.</source>
        <translation>Der Text Resource Editor ist in dieser Version nicht verfügbar.</translation>
    </message>
    <message>
        <source>TXT Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have changed data in file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>%1 wird geladen</translation>
    </message>
    <message>
        <source>File </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error opening file: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error loading from file: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>%1 wird gespeichert</translation>
    </message>
    <message>
        <source>Error writing data to file: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed by another program since it was opened here.

Do you want to replace it, so that those changes are lost?</source>
        <translation>„%1“ wurde von einem anderen Programm geändert, seit die Datei hier geöffnet wurde.

Soll sie ersetzt werden, sodass jene Änderungen verloren gehen?</translation>
    </message>
    <message>
        <source>Do you want to save the file without it?</source>
        <translation>Soll die Datei ohne das gespeichert werden?</translation>
    </message>
    <message>
        <source>Do you want to save the file anyway?</source>
        <translation>Soll die Datei trotzdem gespeichert werden?</translation>
    </message>
    <message>
        <source>Error in SelectFileType: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors in file data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[error getting class]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[error getting object type]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[error getting description]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[error getting race]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[error getting name]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name/ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting the records</source>
        <translation>Die Datensätze werden sortiert</translation>
    </message>
    <message>
        <source>%1 objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error showing object: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected object index: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by name or ID</source>
        <translation>Nach Name oder ID filtern</translation>
    </message>
    <message>
        <source>List only the records whose name or ID contains this text</source>
        <translation>Listet nur die Datensätze, deren Name oder ID diesen Text enthält</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new object</source>
        <translation>Fügt ein neues Objekt hinzu</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the selected objects</source>
        <translation>Kopiert die gewählten Objekte</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the selected objects, and delete them where they are pasted</source>
        <translation>Kopiert die gewählten Objekte und löscht sie, sobald sie eingefügt werden</translation>
    </message>
    <message>
        <source>&amp;Paste...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the objects that were copied or cut</source>
        <translation>Fügt die kopierten oder ausgeschnittenen Objekte ein</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the selected objects</source>
        <translation>Löscht die gewählten Objekte</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a text in the list</source>
        <translation>Sucht einen Text in der Liste</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>Weiter&amp;suchen</translation>
    </message>
    <message>
        <source>Find the same text again</source>
        <translation>Sucht denselben Text noch einmal</translation>
    </message>
    <message>
        <source>Filter the &amp;list</source>
        <translation>&amp;Liste filtern</translation>
    </message>
    <message>
        <source>Go to the filter of the list</source>
        <translation>Geht zum Filter der Liste</translation>
    </message>
    <message>
        <source>Copy the selected fields as text</source>
        <translation>Kopiert die gewählten Felder als Text</translation>
    </message>
    <message>
        <source>Pasting records: %1 of %2</source>
        <translation>Datensätze werden eingefügt: %1 von %2</translation>
    </message>
    <message>
        <source>new object</source>
        <translation>neues Objekt</translation>
    </message>
    <message>
        <source>paste of %1</source>
        <translation>Einfügen von %1</translation>
    </message>
    <message>
        <source>The text on the clipboard holds no objects of this file&apos;s type.</source>
        <translation>Der Text in der Zwischenablage enthält keine Objekte vom Typ dieser Datei.</translation>
    </message>
    <message>
        <source>This type of file is not recognized. You cannot add objects to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot insert: object types are different.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to insert new object before currenty selected object?
Press Yes to insert object before the current one.
Press No to add object at the end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You cannot insert object into sorted list.
Uncheck the Sort checkbox and insert the object again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pasting records</source>
        <translation>Datensätze werden eingefügt</translation>
    </message>
    <message>
        <source>Error creating object: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot delete object from source window - maybe it was closed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you really want to delete the selected object </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you really want to delete the %1 selected objects ?</source>
        <translation>Wirklich die %1 ausgewählten Objekte löschen?</translation>
    </message>
    <message>
        <source>Error removing object from control.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>deletion of %1</source>
        <translation>Löschen von %1</translation>
    </message>
    <message>
        <source>Error removing object.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No more occurencies found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 objects</source>
        <translation>%1 von %2 Objekten</translation>
    </message>
    <message>
        <source>File %1 is not as it was when it was changed. The changes cannot be brought back into it.</source>
        <translation>Die Datei %1 ist nicht mehr so wie zur Zeit der Änderungen. Sie lassen sich nicht mehr in sie zurückholen.</translation>
    </message>
    <message>
        <source>recovered changes</source>
        <translation>wiederhergestellte Änderungen</translation>
    </message>
    <message>
        <source>Not all changes of file %1 could be brought back.</source>
        <translation>Nicht alle Änderungen an der Datei %1 ließen sich zurückholen.</translation>
    </message>
    <message>
        <source>File %1 was changed by another program.
Do you want to load it again?</source>
        <translation>Die Datei %1 wurde von einem anderen Programm geändert.
Soll sie neu geladen werden?</translation>
    </message>
    <message>
        <source>Your changes are lost then.</source>
        <translation>Ihre Änderungen gehen dann verloren.</translation>
    </message>
    <message>
        <source>C&amp;opy values</source>
        <translation>Werte k&amp;opieren</translation>
    </message>
    <message>
        <source>Files of this type have a form of their own. They are written as plain records, which are not read back as this file was read.</source>
        <translation>Dateien dieses Typs haben eine eigene Form. Sie werden als einfache Datensätze geschrieben, die nicht so gelesen werden, wie diese Datei gelesen wurde.</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Return to where &quot;Go to&quot; was chosen</source>
        <translation>Kehrt dorthin zurück, wo „Gehe zu“ gewählt wurde</translation>
    </message>
    <message>
        <source>List only the records of one choice: %1</source>
        <translation>Nur die Einträge einer Auswahl zeigen: %1</translation>
    </message>
</context>
<context>
    <name>frmText</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Show the object that the line with the cursor is about</source>
        <translation>Das Objekt zeigen, von dem die Zeile mit dem Cursor handelt</translation>
    </message>
</context>
<context>
    <name>frmTurretEdit</name>
    <message>
        <source>Turret Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turret data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turret Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turret Descriptor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turret type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path index not specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path index must be whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body ID not specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position is neither in the list nor a whole number.</source>
        <translation>Die Position steht weder in der Liste, noch ist sie eine ganze Zahl.</translation>
    </message>
    <message>
        <source>Turret type must be whole number</source>
        <translation>Der „Turret type“ muss eine ganze Zahl sein</translation>
    </message>
</context>
<context>
    <name>frmWait</name>
    <message>
        <source>Loading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading resources, please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>ucJob</name>
    <message>
        <source>Job info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Owner race</source>
        <translation>Rasse des Besitzers</translation>
    </message>
    <message>
        <source>Any owner race</source>
        <translation>Jeder Besitzer</translation>
    </message>
    <message>
        <source>Ship class</source>
        <translation>Schiffsklasse</translation>
    </message>
    <message>
        <source>Any ship class</source>
        <translation>Jede Schiffsklasse</translation>
    </message>
    <message>
        <source>Warning - this is old Job file (ver. %1)

It&apos;s possible that not all user controls will behave correctly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wing %1 not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ship</source>
        <translation type="unfinished">Schiff</translation>
    </message>
    <message>
        <source>Sector and placement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weapons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Race</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ware list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the job does</source>
        <translation>Was der Auftrag tut</translation>
    </message>
    <message>
        <source>Double click to change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID of the ship&apos;s name</source>
        <translation>ID des Schiffsnamens</translation>
    </message>
    <message>
        <source>Ship name ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a part of the name to find a ship</source>
        <translation>Einen Teil des Namens eingeben, um ein Schiff zu finden</translation>
    </message>
    <message>
        <source>Sector X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sector Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chance ship docked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Doubleclick to change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jobs of the wing</source>
        <translation>Aufträge des Geschwaders</translation>
    </message>
</context>
<context>
    <name>ucShip</name>
    <message>
        <source>[Error getting description]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ship info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning:
Manually modifying this value can corrupt ship data.
This value is altered automatically by the editor.

Do you really want to modify it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; was modified to be equal to new &quot;%2&quot; value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error showing object: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ship type: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max recharge time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gun group count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cockpit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Cockpit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Turret</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a turret behind the last one (Ins in the list)</source>
        <translation>Einen Turm hinter dem letzten anfügen (Einfg in der Liste)</translation>
    </message>
    <message>
        <source>Remove Turret</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the last turret (Del in the list)</source>
        <translation>Den letzten Turm entfernen (Entf in der Liste)</translation>
    </message>
    <message>
        <source>Add Gun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a gun to the selected group (Ins in the lists)</source>
        <translation>Der ausgewählten Gruppe eine Waffe anfügen (Einfg in den Listen)</translation>
    </message>
    <message>
        <source>Remove Gun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the last gun of the group (Del in the list)</source>
        <translation>Die letzte Waffe der Gruppe entfernen (Entf in der Liste)</translation>
    </message>
    <message>
        <source>Ship</source>
        <translation>Schiff</translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weapons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cockpits (turrets)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Front lasers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wares</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type and description</source>
        <translation>Typ und Beschreibung</translation>
    </message>
    <message>
        <source>Compatible lasers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available lasers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compatible missiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available missiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ware List ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(doubleclick to change)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export TShips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Semicolon delimeted file (*.txt)|*.txt|Record structure (*.txt)|*.txt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ships would be lost: an export cannot be loaded again.</source>
        <translation>Die Schiffe gingen verloren: Ein Export lässt sich nicht wieder laden.</translation>
    </message>
</context>
<context>
    <name>ucTurret</name>
    <message>
        <source>Compatible lasers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available lasers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lasers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turrets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turret info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These are no turrets.</source>
        <translation>Das sind keine Türme.</translation>
    </message>
</context>
<context>
    <name>ucWare</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color (RGB)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is TNebula file for Lorn. It&apos;s not fully supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No object is selected.</source>
        <translation>Es ist kein Objekt ausgewählt.</translation>
    </message>
    <message>
        <source>Record structure (*.txt, *.cat)|*.txt;*.cat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file would be lost: an export cannot be loaded again.</source>
        <translation>Die Datei ginge verloren: Ein Export lässt sich nicht wieder laden.</translation>
    </message>
    <message>
        <source>Objects of this type cannot be created.</source>
        <translation>Objekte dieser Art lassen sich nicht anlegen.</translation>
    </message>
    <message>
        <source> (Dust body)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (Dust density)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N/A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Error getting description]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show object scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debris map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View object&apos;s body in external viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View object&apos;s picture in external viewer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ucWareList</name>
    <message>
        <source>Ware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ware List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ware List info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ware lists are only shown here; none can be added.</source>
        <translation>Warenlisten werden hier nur gezeigt; neue lassen sich nicht anlegen.</translation>
    </message>
</context>
</TS>
