<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Act</name>
    <message>
        <source>Import %1</source>
        <translation>Import von %1</translation>
    </message>
    <message>
        <source>Uploaded %1</source>
        <translation>Ausgelesen um %1</translation>
    </message>
    <message>
        <source>This overwrites alarm %1.</source>
        <translation>Das überschreibt Alarm %1.</translation>
    </message>
    <message>
        <source>This overwrites alarms %1.</source>
        <translation>Das überschreibt die Alarme %1.</translation>
    </message>
    <message>
        <source>This overwrites exception %1.</source>
        <translation>Das überschreibt Ausnahme %1.</translation>
    </message>
    <message>
        <source>This overwrites exceptions %1.</source>
        <translation>Das überschreibt die Ausnahmen %1.</translation>
    </message>
    <message>
        <source>Copy alarm</source>
        <translation>Alarm kopieren</translation>
    </message>
    <message>
        <source>Copy exception</source>
        <translation>Ausnahme kopieren</translation>
    </message>
</context>
<context>
    <name>Advice</name>
    <message>
        <source>In the range of %1 the first value is above the second. Check it with %2.</source>
        <translation>Im Bereich von %1 ist der erste Wert größer als der zweite. Prüfen Sie den Bereich mit „%2“.</translation>
    </message>
    <message>
        <source>Only free exceptions trigger %1, so no alarm occurs. Enter a text for the exceptions, or pick another %2.</source>
        <translation>Als Auslöser von %1 sind nur freie Ausnahmen gewählt, deshalb wird dort nie ein Alarm ausgelöst. Geben Sie den Ausnahmen einen Text oder wählen Sie bei „%2“ etwas anderes.</translation>
    </message>
    <message>
        <source>the trigger text of %1</source>
        <translation>der Alarmtext von %1</translation>
    </message>
    <message>
        <source>The text is empty or only blanks: %1. Such a text never matches and shows nothing. Enter a text with %2, or switch off the actions and the operator.</source>
        <translation>Der Text ist leer oder besteht nur aus Leerzeichen: %1. Ein solcher Text passt nie und zeigt nichts an. Geben Sie mit „%2“ einen Text ein oder schalten Sie die zugehörigen Aktionen und den Vergleich aus.</translation>
    </message>
    <message>
        <source>another register</source>
        <translation>eine andere Kasse</translation>
    </message>
    <message>
        <source>Files that &quot;Save&quot; writes under this firmware have this format.</source>
        <translation>Unter dieser Firmware erzeugt „Speichern“ Dateien in diesem Format.</translation>
    </message>
    <message>
        <source>The program could not use the upload: %1. The list shows %2, but the configuration is still that of %3. Upload again, or pick %3.</source>
        <translation>Die ausgelesenen Daten wurden nicht übernommen: %1. Die Liste der Kassen zeigt %2, aber die Konfiguration ist noch die von %3. Lesen Sie das Gerät erneut aus oder wählen Sie %3.</translation>
    </message>
    <message>
        <source>The answer of the unit had a wrong parity, so the program changed the register to %1, with its options and its line settings. Undo restores %2.</source>
        <translation>Die Antwort hatte eine falsche Parität, deshalb wurde %1 gewählt, mit den zugehörigen Optionen und Leitungseinstellungen. „Rückgängig“ stellt %2 wieder her.</translation>
    </message>
    <message>
        <source>%1 does not have the format of %2, so the register options and all settings after them are in the wrong place. Do not download them.</source>
        <translation>%1 hat nicht das Format von %2, deshalb sind die Optionen der Kasse und alle Einstellungen danach an der falschen Stelle. Schreiben Sie diese Konfiguration nicht in das Gerät.</translation>
    </message>
    <message>
        <source>Upload again, or open a backup.</source>
        <translation>Lesen Sie das Gerät erneut aus oder öffnen Sie eine Sicherung.</translation>
    </message>
    <message>
        <source>%1 is not a configuration that %2 can open. Nothing has changed.</source>
        <translation>%1 ist keine Konfiguration, die sich unter %2 öffnen lässt. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Open a backup, or pick the firmware of the file in the Version menu.</source>
        <translation>Öffnen Sie eine Sicherung oder wählen Sie im Menü „Version“ die Firmware der Datei.</translation>
    </message>
    <message>
        <source>The list shows %1, but the options and the configuration are still those of %2. Pick %1 again.</source>
        <translation>Die Liste der Kassen zeigt %1, aber die Optionen und die Konfiguration gehören noch zu %2: Die Auswahl wurde ignoriert. Wählen Sie %1 noch einmal.</translation>
    </message>
    <message>
        <source>Open was cancelled. The next pick in the register list has no effect: the list shows it, but the program loads nothing. Pick the register twice.</source>
        <translation>Das Öffnen wurde abgebrochen. Die nächste Auswahl in der Liste der Kassen wird ignoriert: Die Markierung wechselt, aber es wird nichts geladen. Wählen Sie die Kasse zweimal.</translation>
    </message>
    <message>
        <source>Open failed: %1. The next pick in the register list has no effect: the list shows it, but the program loads nothing. Pick the register twice.</source>
        <translation>Das Öffnen ist fehlgeschlagen: %1. Die nächste Auswahl in der Liste der Kassen wird ignoriert: Die Markierung wechselt, aber es wird nichts geladen. Wählen Sie die Kasse zweimal.</translation>
    </message>
    <message>
        <source>The program does not know the firmware %1, so the register list and the tabs are empty. Pick the firmware on the label of the unit in the %2 menu. The program then ends. Start it again.</source>
        <translation>Das Programm kennt die Firmware %1 nicht, deshalb sind die Liste der Kassen und die Registerkarten leer. Wählen Sie im Menü „%2“ die Firmware, die auf dem Typenschild des Geräts steht. Das Programm beendet sich danach; starten Sie es erneut.</translation>
    </message>
    <message>
        <source>The options of %1 are hidden: a stored option is not in its list. Pick %1 again to load its default options and its default line settings.</source>
        <translation>Die Optionen von %1 sind ausgeblendet: Eine der gespeicherten Optionen kommt in ihrer Liste nicht vor. Wählen Sie %1 noch einmal, um die Standardwerte der Optionen und der Leitung zu laden.</translation>
    </message>
    <message>
        <source>The options of %1 are hidden: %2 contains %3, which is not in its list. Pick %1 again to load its default options and its default line settings.</source>
        <translation>Die Optionen von %1 sind ausgeblendet: %2 enthält %3, was in der Liste nicht vorkommt. Wählen Sie %1 noch einmal, um die Standardwerte der Optionen und der Leitung zu laden.</translation>
    </message>
    <message>
        <source>%1 does not open again correctly: under %2, &quot;Open&quot; reads its settings in the wrong place. Use &quot;%3&quot; for a file that opens again.</source>
        <translation>%1 lässt sich nicht richtig wieder öffnen: Unter %2 liest „Öffnen“ die Werte der Datei verschoben ein. Eine Datei, die sich wieder öffnen lässt, erhalten Sie mit „%3“.</translation>
    </message>
    <message>
        <source>%1 does not open again: under %2, &quot;Open&quot; refuses it. Use &quot;%3&quot; for a file that opens again.</source>
        <translation>%1 lässt sich nicht wieder öffnen: Unter %2 lehnt „Öffnen“ die Datei ab. Eine Datei, die sich wieder öffnen lässt, erhalten Sie mit „%3“.</translation>
    </message>
    <message>
        <source>The pick of %1 also changed %2. Check these tabs before you download.</source>
        <translation>Mit der Wahl von %1 wurde außerdem gespeichert: %2. Prüfen Sie diese Registerkarten, bevor Sie in das Gerät schreiben.</translation>
    </message>
    <message>
        <source>The options of %1 also changed %2. Check these tabs before you download.</source>
        <translation>Mit den Optionen von %1 wurde außerdem gespeichert: %2. Prüfen Sie diese Registerkarten, bevor Sie in das Gerät schreiben.</translation>
    </message>
    <message>
        <source>The tabs show default settings, not those of the unit. On %1, press %2.</source>
        <translation>Die Registerkarten zeigen Standardeinstellungen, nicht die des Geräts. Drücken Sie auf %1: %2.</translation>
    </message>
    <message>
        <source>Choose the baud rate, the data bits and the parity of the unit in Set Comport, then press SET and Remote.</source>
        <translation>Wählen Sie unter „COM-Port einstellen“ die Baudrate, die Datenbits und die Parität des Geräts. Drücken Sie dann „ÜBERNEHMEN“ und „Fernsteuern“.</translation>
    </message>
    <message>
        <source>Comport %1, %2, was lost at %3 (%4) during the scan. The unit is unchanged.</source>
        <translation>COM-Port %1, %2, ist um %3 während der Suche ausgefallen (%4). Das Gerät ist unverändert.</translation>
    </message>
    <message>
        <source>Comport %1, %2, was lost at %3 (%4) during the upload. The unit is unchanged, and the tabs show nothing of the upload.</source>
        <translation>COM-Port %1, %2, ist um %3 während des Auslesens ausgefallen (%4). Das Gerät ist unverändert, und die Registerkarten enthalten nichts von den ausgelesenen Daten.</translation>
    </message>
    <message>
        <source>Comport %1, %2, was lost at %3 (%4) before the download began. The unit has its old configuration.</source>
        <translation>COM-Port %1, %2, ist um %3 ausgefallen, bevor das Schreiben begann (%4). Das Gerät hat noch seine alte Konfiguration.</translation>
    </message>
    <message>
        <source>Comport %1, %2, was lost at %3 (%4) during the download. The unit may have half a configuration, so download again.</source>
        <translation>COM-Port %1, %2, ist um %3 während des Schreibens ausgefallen (%4). Das Gerät hat die Konfiguration vielleicht nur teilweise erhalten, schreiben Sie sie deshalb noch einmal.</translation>
    </message>
    <message>
        <source>Comport %1, %2, was lost at %3 (%4) after the download. The program sent the whole configuration, but the unit has not confirmed it.</source>
        <translation>COM-Port %1, %2, ist um %3 nach dem Schreiben ausgefallen (%4). Das Gerät hat die ganze Konfiguration erhalten, sie aber nicht bestätigt.</translation>
    </message>
    <message>
        <source>Comport %1, %2, was lost at %3 (%4) while the clock was set. The unit may have the new time.</source>
        <translation>COM-Port %1, %2, ist um %3 beim Stellen der Uhr ausgefallen (%4). Das Gerät hat vielleicht schon die neue Zeit.</translation>
    </message>
    <message>
        <source>Comport %1, %2, was lost at %3 (%4) during the master reset. The unit may have its factory settings.</source>
        <translation>COM-Port %1, %2, ist um %3 während des Zurücksetzens ausgefallen (%4). Das Gerät hat vielleicht schon die Werkseinstellungen.</translation>
    </message>
    <message>
        <source>Comport %1, %2, was lost at %3 (%4). The unit is unchanged.</source>
        <translation>COM-Port %1, %2, ist um %3 ausgefallen (%4). Das Gerät ist unverändert.</translation>
    </message>
    <message>
        <source>Only root and the group of the device, mostly dialout, may use it. As root: adduser NAME dialout; then log in again.</source>
        <translation>Nur root und die Mitglieder ihrer Gruppe, meist „dialout“, dürfen die Schnittstelle benutzen. Führen Sie als root „adduser NAME dialout“ aus und melden Sie sich danach neu an.</translation>
    </message>
    <message>
        <source>Plug the adapter in, choose the comport of another device, or set the link ports/com%1 in the program folder.</source>
        <translation>Stecken Sie den Adapter ein, wählen Sie den COM-Port einer anderen Schnittstelle oder legen Sie im Programmordner die Verknüpfung ports/com%1 an.</translation>
    </message>
    <message>
        <source>The device is not there: plug the adapter in, or choose the comport of another device.</source>
        <translation>Die Schnittstelle ist nicht vorhanden: Stecken Sie den Adapter ein oder wählen Sie den COM-Port einer anderen Schnittstelle.</translation>
    </message>
    <message>
        <source>No hardware belongs to this name: choose the comport of another device.</source>
        <translation>Unter diesem Namen gibt es keine Hardware: Wählen Sie den COM-Port einer anderen Schnittstelle.</translation>
    </message>
    <message>
        <source>Another program uses the device: close it.</source>
        <translation>Ein anderes Programm benutzt die Schnittstelle: Schließen Sie es.</translation>
    </message>
    <message>
        <source>The device cannot use %1: choose another baud rate, other data bits or another parity.</source>
        <translation>Die Schnittstelle unterstützt %1 nicht: Wählen Sie eine andere Baudrate, andere Datenbits oder eine andere Parität.</translation>
    </message>
    <message>
        <source>Choose another comport, or check the device.</source>
        <translation>Wählen Sie einen anderen COM-Port oder prüfen Sie die Schnittstelle.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>An upload stopped before its end. The program keeps what it received and would read it together with the next upload. Restart the program before you upload again.</source>
        <translation>Das Auslesen wurde abgebrochen. Das Programm behält die empfangenen Daten und würde sie zusammen mit den nächsten lesen. Starten Sie das Programm neu, bevor Sie erneut auslesen.</translation>
    </message>
    <message>
        <source>The tabs show a mixture of two uploads: the beginning of one that stopped, and the rest of the last one. Do not download it. Restart the program, which discards the mixture, and upload again.</source>
        <translation>Die Registerkarten zeigen eine Mischung: Der Anfang stammt aus einem abgebrochenen Auslesen, der Rest aus dem letzten. Schreiben Sie sie nicht in das Gerät. Starten Sie das Programm neu, um die Mischung zu verwerfen, und lesen Sie das Gerät erneut aus.</translation>
    </message>
    <message>
        <source>%1 Plug the device in again and restart the program. Then press %2.</source>
        <translation>%1 Stecken Sie den Adapter wieder ein und starten Sie das Programm neu. Drücken Sie dann: %2.</translation>
    </message>
    <message>
        <source>%1 Plug the device in again. Then press %2.</source>
        <translation>%1 Stecken Sie den Adapter wieder ein. Drücken Sie dann: %2.</translation>
    </message>
    <message>
        <source>A download stopped at %1. The unit may have half a configuration, so download again: %2.</source>
        <translation>Um %1 wurde das Schreiben abgebrochen. Das Gerät hat die Konfiguration vielleicht nur teilweise erhalten, schreiben Sie sie deshalb noch einmal: %2.</translation>
    </message>
    <message>
        <source>The download at %1 did not begin. The unit has its old configuration. To try again: %2.</source>
        <translation>Das Schreiben um %1 wurde nicht begonnen. Das Gerät hat noch seine alte Konfiguration. Für einen neuen Versuch: %2.</translation>
    </message>
    <message>
        <source>Comport %1, %2, did not open: %3. %4</source>
        <translation>COM-Port %1, %2, ließ sich nicht öffnen: %3. %4</translation>
    </message>
    <message>
        <source>This scan cannot find the unit. The program accepts an answer only if the unit was in remote mode before, and Disconnect or a time-out ended remote mode. Press %1. %2</source>
        <translation>Diese Suche kann das Gerät nicht finden. Das Programm nimmt eine Antwort nur an, wenn zuvor der Fernsteuermodus aktiv war und durch „Trennen“ oder eine Zeitüberschreitung endete. Drücken Sie „%1“. %2</translation>
    </message>
    <message>
        <source>The scan could not find the unit. The program accepts an answer only if the unit was in remote mode before, and Disconnect or a time-out ended remote mode. %1</source>
        <translation>Die Suche konnte das Gerät nicht finden. Das Programm nimmt eine Antwort nur an, wenn zuvor der Fernsteuermodus aktiv war und durch „Trennen“ oder eine Zeitüberschreitung endete. %1</translation>
    </message>
    <message>
        <source>No unit answered the scan. It tried every baud rate with %1 and parity %2. Check the cable and the power of the unit. If the unit has other data bits or another parity, choose them in Set Comport and scan again.</source>
        <translation>Auf die Suche hat kein Gerät geantwortet. Versucht wurde jede Baudrate mit %1 und Parität %2. Prüfen Sie das Kabel und die Stromversorgung des Geräts. Hat das Gerät andere Datenbits oder eine andere Parität, wählen Sie diese unter „COM-Port einstellen“ und suchen Sie erneut.</translation>
    </message>
    <message>
        <source>The unit has not confirmed the download at %1. It may have another configuration, so download again: %2.</source>
        <translation>Das Gerät hat das Schreiben um %1 nicht bestätigt. Es hat vielleicht eine andere Konfiguration, schreiben Sie deshalb noch einmal: %2.</translation>
    </message>
    <message>
        <source>No unit answered on Comport %1 at %2 baud with %3 and parity %4. Check the cable and the power of the unit. If the unit has other settings, choose them in Set Comport.</source>
        <translation>Auf COM-Port %1 hat kein Gerät geantwortet (%2 Baud, %3, Parität %4). Prüfen Sie das Kabel und die Stromversorgung des Geräts. Hat das Gerät andere Einstellungen, wählen Sie diese unter „COM-Port einstellen“.</translation>
    </message>
</context>
<context>
    <name>AdviceBar</name>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Hide this advice</source>
        <translation>Diese Meldung ausblenden</translation>
    </message>
    <message>
        <source>Hides this advice until its condition has ended and is true again.</source>
        <translation>Blendet diese Meldung aus, bis ihr Anlass wegfällt und erneut eintritt.</translation>
    </message>
    <message>
        <source>Does the next step of the advice.</source>
        <translation>Führt den nächsten Schritt des Hinweises aus.</translation>
    </message>
</context>
<context>
    <name>AlarmPage</name>
    <message>
        <source>free</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>Overview of the alarms</source>
        <translation>Übersicht der Alarme</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Auslöser</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Ruhezustand</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>EX. exceptions   NO normally open   NC normally closed</source>
        <translation>EX. Ausnahmen   NO Schließer   NC Öffner</translation>
    </message>
    <message>
        <source>All alarms</source>
        <translation>Alle Alarme</translation>
    </message>
</context>
<context>
    <name>Box</name>
    <message>
        <source>                            !!! Remote Connection Fail. !!!
Cable Disconnected Or Communication Setting Wrong ,Try Again</source>
        <translation>                            !!! Fernsteuerverbindung fehlgeschlagen !!!
Kabel nicht angeschlossen oder Schnittstelle falsch eingestellt. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>                   %1
Please ReInstall Ovalon PC Software !!</source>
        <translation>                   %1
Bitte installieren Sie die Ovalon PC Software neu !!</translation>
    </message>
    <message>
        <source>                System File Error. 
Please ReInstall Ovalon PC Software !!</source>
        <translation>                Fehler in einer Systemdatei. 
Bitte installieren Sie die Ovalon PC Software neu !!</translation>
    </message>
    <message>
        <source>        Please Select Comport.</source>
        <translation>        Bitte wählen Sie einen COM-Port.</translation>
    </message>
    <message>
        <source>       Master Reset Done.</source>
        <translation>       Zurücksetzen abgeschlossen.</translation>
    </message>
    <message>
        <source> ! Please Reinstall OVL PC Software !</source>
        <translation> ! Bitte installieren Sie die OVL PC Software neu !</translation>
    </message>
    <message>
        <source>!!! Remote Connection Time out. !!!</source>
        <translation>!!! Zeitüberschreitung der Fernsteuerverbindung !!!</translation>
    </message>
    <message>
        <source>%1 WILL TAKE EFFECT WHEN THE APPLICATION NEXT START</source>
        <translation>%1 WIRD BEIM NÄCHSTEN START DES PROGRAMMS WIRKSAM</translation>
    </message>
    <message>
        <source>- Connection Fail -</source>
        <translation>- Verbindung fehlgeschlagen -</translation>
    </message>
    <message>
        <source>- Connection Time Out -</source>
        <translation>- Zeitüberschreitung der Verbindung -</translation>
    </message>
    <message>
        <source>Cannot Master Reset to Device.</source>
        <translation>Das Gerät lässt sich nicht zurücksetzen.</translation>
    </message>
    <message>
        <source>Check Parity and Data Bit Setting that Same OVL ,Try again !!!</source>
        <translation>Prüfen Sie, ob Parität und Datenbits mit denen des Geräts übereinstimmen, und versuchen Sie es erneut!</translation>
    </message>
    <message>
        <source>Incompatible File !!!, try again.</source>
        <translation>Datei nicht kompatibel! Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>No Response From The Device</source>
        <translation>Keine Antwort vom Gerät</translation>
    </message>
    <message>
        <source>NoFile Save. !!!        </source>
        <translation>Keine Datei gespeichert!        </translation>
    </message>
    <message>
        <source>Please ReInstall Ovalon PC Software</source>
        <translation>Bitte installieren Sie die Ovalon PC Software neu</translation>
    </message>
    <message>
        <source>Please Send Time Date agian.</source>
        <translation>Bitte stellen Sie Uhrzeit und Datum erneut.</translation>
    </message>
    <message>
        <source>Registry Error.</source>
        <translation>Fehler in der Registrierung.</translation>
    </message>
    <message>
        <source>SET TIME DATE FINISHED.</source>
        <translation>UHRZEIT UND DATUM GESTELLT.</translation>
    </message>
    <message>
        <source>Save Completed.        </source>
        <translation>Speichern abgeschlossen.        </translation>
    </message>
    <message>
        <source>The Ovalon Version is not compatible !!!
       Try with the same version again.</source>
        <translation>Die Ovalon-Version ist nicht kompatibel !!!
       Versuchen Sie es mit derselben Version erneut.</translation>
    </message>
</context>
<context>
    <name>Boxes</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open anyway</source>
        <translation>Trotzdem öffnen</translation>
    </message>
</context>
<context>
    <name>ChangesWindow</name>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Geänderte Einstellungen</translation>
    </message>
    <message>
        <source>Show bytes</source>
        <translation>Bytes anzeigen</translation>
    </message>
    <message>
        <source>Changes: %1</source>
        <translation>Änderungen: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n setting</source>
        <translation>
            <numerusform>%n Einstellung</numerusform>
            <numerusform>%n Einstellungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n Einstellung</numerusform>
            <numerusform>%n Einstellungen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has the same settings.</source>
        <translation>%1 hat dieselben Einstellungen wie die Registerkarten.</translation>
    </message>
    <message>
        <source>%1 differs from the tabs in %2.</source>
        <comment>a file, &quot;3 settings&quot;</comment>
        <translation>%1 unterscheidet sich von den Registerkarten: %2.</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>In der Datei</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <comment>&quot;3 settings&quot;</comment>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Bytes before</source>
        <translation>Bytes vorher</translation>
    </message>
    <message>
        <source>Bytes now</source>
        <translation>Bytes jetzt</translation>
    </message>
    <message>
        <source>Nothing has changed since the start or the last upload, download or Open.</source>
        <translation>Seit dem Start oder dem letzten Auslesen, Schreiben oder Öffnen hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>Since the start or the last upload, download or Open, %1 changed. A download writes all settings into the unit, not only the changed ones.</source>
        <comment>&quot;3 settings&quot;</comment>
        <translation>Seit dem Start oder dem letzten Auslesen, Schreiben oder Öffnen geändert: %1. „Schreiben“ überträgt alle Einstellungen in das Gerät, nicht nur die geänderten.</translation>
    </message>
    <message>
        <source>Shows what has changed since the start or the last upload, download or Open (Ctrl+D)</source>
        <translation>Zeigt, was sich seit dem Start oder dem letzten Auslesen, Schreiben oder Öffnen geändert hat (Strg+D)</translation>
    </message>
</context>
<context>
    <name>Check</name>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>only VIDEO LOSS</source>
        <translation>nur VIDEOVERLUST</translation>
    </message>
    <message>
        <source>it</source>
        <translation>es</translation>
    </message>
    <message>
        <source>an unknown register</source>
        <translation>eine unbekannte Kasse</translation>
    </message>
    <message>
        <source>%1 contains %2, but its list has no entry for it.</source>
        <translation>%1 enthält %2, was in der Liste nicht vorkommt.</translation>
    </message>
    <message>
        <source>%1 has this number of bytes: %2. %4 reads %3, so a download puts all settings after it in the wrong place.</source>
        <translation>Anzahl der Bytes von %1: %2. %4 liest dort aber %3, deshalb kommen beim Schreiben alle Einstellungen danach an die falsche Stelle.</translation>
    </message>
    <message>
        <source>%1 is %2, but the default image of %3 has %4. The stored value can be that of another register.</source>
        <translation>%1 ist %2, aber die Standardkonfiguration von %3 enthält %4. Der gespeicherte Wert kann der einer anderen Kasse sein.</translation>
    </message>
    <message>
        <source>%1 is %2, but the options of %3 set it to %4.</source>
        <translation>%1 ist %2, aber die Optionen von %3 setzen es auf %4.</translation>
    </message>
    <message>
        <source>%1 shows &quot;%2&quot;, but %3 contains %4, and a pick of &quot;%2&quot; stores %5.</source>
        <translation>%1 zeigt „%2“, aber %3 enthält %4, und die Wahl von „%2“ würde %5 speichern.</translation>
    </message>
    <message>
        <source>Alarm %1 has a delay after the RTS line, but its ALARM TRIGGER is %2.</source>
        <translation>Für Alarm %1 ist TEXTVERZÖGERUNG NACH RTS eingestellt, aber sein ALARMAUSLÖSER ist %2.</translation>
    </message>
    <message>
        <source>Alarm %1 has a text to show or to send, but nothing triggers the alarm.</source>
        <translation>Alarm %1 hat einen Text zum Anzeigen oder Ausgeben, aber nichts löst den Alarm aus.</translation>
    </message>
    <message>
        <source>DISPLAY LINE is %1, but the clock and the title need at least %2 lines.</source>
        <translation>ANZEIGEZEILEN ist %1, aber Uhr und Titel brauchen mindestens %2 Zeilen.</translation>
    </message>
    <message>
        <source>DISPLAY TEXT of %1 is ON, but DISPLAY of the text display is OFF.</source>
        <translation>TEXT ANZEIGEN von %1 ist EIN, aber ANZEIGE der Textanzeige ist AUS.</translation>
    </message>
    <message>
        <source>DISPLAY of %1 is ON, but DISPLAY of the text display is OFF.</source>
        <translation>ANZEIGE von %1 ist EIN, aber ANZEIGE der Textanzeige ist AUS.</translation>
    </message>
    <message>
        <source>DUPLICATE LINE is ON, but OUTPUT of the exception report is OFF.</source>
        <translation>DOPPELTE ZEILEN ist EIN, aber AUSGABE der Ausnahmemeldung ist AUS.</translation>
    </message>
    <message>
        <source>Exception %1 compares the amount, but both values of its range are 0.</source>
        <translation>Ausnahme %1 vergleicht den Betrag, aber beide Werte ihres Bereichs sind 0.</translation>
    </message>
    <message>
        <source>Exception %1 has SCROLL MATCHING, so its DISPLAY, OUTPUT and HISTORY BUFFER can change to OFF when the tab shows it.</source>
        <translation>Bei Ausnahme %1 ist MEHRZEILENSUCHE EIN, deshalb können ANZEIGE, AUSGABE und VERLAUFSSPEICHER auf AUS wechseln, sobald Sie die Ausnahme aufrufen.</translation>
    </message>
    <message>
        <source>Exception %1 has a range, but its OPERATOR is NONE, so the unit does not compare the amount.</source>
        <translation>Ausnahme %1 hat einen Bereich, aber bei VERGLEICH ist OHNE gewählt, deshalb wird kein Betrag verglichen.</translation>
    </message>
    <message>
        <source>Exception %1 has an action or is not marked as free, but its text is empty or only blanks.</source>
        <translation>Ausnahme %1 hat eine Aktion oder ist nicht als frei markiert, aber ihr Text ist leer oder besteht nur aus Leerzeichen.</translation>
    </message>
    <message>
        <source>Exception %1 has the text &quot;%2&quot;, but is marked as free.</source>
        <translation>Ausnahme %1 hat den Text „%2“, ist aber als frei markiert.</translation>
    </message>
    <message>
        <source>Exception %1 has the same text, operator and range as exception %2: &quot;%3&quot;.</source>
        <translation>Ausnahme %1 hat denselben Text, Vergleich und Bereich wie Ausnahme %2: „%3“.</translation>
    </message>
    <message>
        <source>Exception %1, &quot;%2&quot;, has no effect: its actions are OFF, and it triggers no alarm.</source>
        <translation>Ausnahme %1, „%2“, hat keine Wirkung: Ihre Aktionen sind AUS, und sie löst keinen Alarm aus.</translation>
    </message>
    <message>
        <source>FLAG TYPE is %1, but FLAG DURATION is %2.</source>
        <translation>MARKIERUNG ist %1, aber MARKIERUNGSDAUER ist %2.</translation>
    </message>
    <message>
        <source>In the range of exception %1 the first value is above the second.</source>
        <translation>Im Bereich von Ausnahme %1 ist der erste Wert größer als der zweite.</translation>
    </message>
    <message>
        <source>OUTPUT of %1 is ON, but OUTPUT of the exception report is OFF.</source>
        <translation>AUSGABE von %1 ist EIN, aber AUSGABE der Ausnahmemeldung ist AUS.</translation>
    </message>
    <message>
        <source>Only free exceptions trigger alarm %1 (%2), so %3 triggers it.</source>
        <translation>Als Auslöser von Alarm %1 (%2) sind nur freie Ausnahmen gewählt, deshalb löst ihn %3 aus.</translation>
    </message>
    <message>
        <source>T/D LOCKING is ON, but T/D DISPLAY is OFF.</source>
        <translation>UHR SPERREN ist EIN, aber UHR ANZEIGEN ist AUS.</translation>
    </message>
    <message>
        <source>TIME STAMP is ON, but OUTPUT of the exception report is OFF.</source>
        <translation>ZEITSTEMPEL ist EIN, aber AUSGABE der Ausnahmemeldung ist AUS.</translation>
    </message>
    <message>
        <source>TITLER is ON, but the title is empty.</source>
        <translation>TITEL ANZEIGEN ist EIN, aber der Titel ist leer.</translation>
    </message>
    <message>
        <source>TYPE of the network is %1, but its ADDRESS is %2.</source>
        <translation>TYP des Netzwerks ist %1, aber ADRESSE ist %2.</translation>
    </message>
    <message>
        <source>The IP address of %1 is 0.0.0.0.</source>
        <translation>Die IP-Adresse von %1 ist 0.0.0.0.</translation>
    </message>
    <message>
        <source>The default image of %1 in the program folder is that of %2, so a pick of %1 selects %2.</source>
        <translation>Die Standardkonfiguration von %1 im Programmordner ist die von %2, deshalb stellt die Wahl von %1 in Wirklichkeit %2 ein.</translation>
    </message>
    <message>
        <source>The network is stored with the ADDRESS %1, but the tab shows %2 for its TYPE %3.</source>
        <translation>Das Netzwerk ist mit der ADRESSE %1 gespeichert, aber die Registerkarte zeigt %2 für seinen TYP %3.</translation>
    </message>
    <message>
        <source>The network is stored with the BAUD RATE %1, but its PROTOCOL %2 needs %3.</source>
        <translation>Das Netzwerk ist mit der BAUDRATE %1 gespeichert, aber sein PROTOKOLL %2 erfordert %3.</translation>
    </message>
    <message>
        <source>The options of %1 are hidden: %2 contains %3, which is not in its list.</source>
        <translation>Die Optionen von %1 sind ausgeblendet: %2 enthält %3, was in der Liste nicht vorkommt.</translation>
    </message>
    <message>
        <source>The range of exception %1 is not a number: its digits are %2.</source>
        <translation>Der Bereich von Ausnahme %1 enthält keine gültige Zahl: %2.</translation>
    </message>
    <message>
        <source>The text of exception %1 begins with a blank, so the line must have this blank too.</source>
        <translation>Der Text von Ausnahme %1 beginnt mit einem Leerzeichen, das auch in der Zeile stehen muss.</translation>
    </message>
    <message>
        <source>The text of exception %1 is only &quot;?&quot;, which matches any character.</source>
        <translation>Der Text von Ausnahme %1 besteht nur aus „?“, das für jedes beliebige Zeichen steht.</translation>
    </message>
    <message>
        <source>The text of exception %1 is stored with the length %2, but its length is %3.</source>
        <translation>Der Text von Ausnahme %1 ist mit der Länge %2 gespeichert, seine tatsächliche Länge ist %3.</translation>
    </message>
    <message>
        <source>The trigger text of alarm %1 is empty or only blanks.</source>
        <translation>Der Alarmtext von Alarm %1 ist leer oder besteht nur aus Leerzeichen.</translation>
    </message>
    <message>
        <source>The trigger text of alarm %1 is neither shown nor sent.</source>
        <translation>Der Alarmtext von Alarm %1 wird weder angezeigt noch ausgegeben.</translation>
    </message>
    <message>
        <source>The unit starts its demo after power up.</source>
        <translation>Das Gerät spielt nach dem Einschalten seine Demo ab.</translation>
    </message>
    <message>
        <source>There is a title, but TITLER is OFF.</source>
        <translation>Es gibt einen Titel, aber TITEL ANZEIGEN ist AUS.</translation>
    </message>
</context>
<context>
    <name>ChecksWindow</name>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Hinweise</translation>
    </message>
    <message numerus="yes">
        <source>%n error</source>
        <translation>
            <numerusform>%n Fehler</numerusform>
            <numerusform>%n Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n errors</source>
        <translation>
            <numerusform>%n Fehler</numerusform>
            <numerusform>%n Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning</source>
        <translation>
            <numerusform>%n Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note</source>
        <translation>
            <numerusform>%n Hinweis</numerusform>
            <numerusform>%n Hinweise</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n notes</source>
        <translation>
            <numerusform>%n Hinweis</numerusform>
            <numerusform>%n Hinweise</numerusform>
        </translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Prüfungen</translation>
    </message>
    <message>
        <source>Shows the findings of the checks (Ctrl+K)</source>
        <translation>Zeigt, was Sie in der Konfiguration prüfen sollten (Strg+K)</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>The checks found nothing in this configuration.</source>
        <translation>Die Prüfungen haben in dieser Konfiguration nichts gefunden.</translation>
    </message>
    <message>
        <source>The checks found %1 in this configuration.</source>
        <translation>Ergebnis der Prüfungen dieser Konfiguration: %1.</translation>
    </message>
</context>
<context>
    <name>CopySlotWindow</name>
    <message>
        <source>This is the number of the alarm that you copy. Pick another number.</source>
        <translation>Das ist die Nummer des Alarms, den Sie kopieren. Wählen Sie eine andere Nummer.</translation>
    </message>
    <message>
        <source>This is the number of the exception that you copy. Pick another number.</source>
        <translation>Das ist die Nummer der Ausnahme, die Sie kopieren. Wählen Sie eine andere Nummer.</translation>
    </message>
    <message>
        <source>No alarm in use is overwritten.</source>
        <translation>Kein belegter Alarm wird überschrieben.</translation>
    </message>
    <message>
        <source>No exception in use is overwritten.</source>
        <translation>Keine belegte Ausnahme wird überschrieben.</translation>
    </message>
    <message>
        <source>First target</source>
        <translation>Erstes Ziel</translation>
    </message>
    <message>
        <source>Last target</source>
        <translation>Letztes Ziel</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy alarm</source>
        <translation>Alarm kopieren</translation>
    </message>
    <message>
        <source>Copy exception</source>
        <translation>Ausnahme kopieren</translation>
    </message>
    <message>
        <source>Copy alarm %1 to</source>
        <translation>Alarm %1 kopieren nach</translation>
    </message>
    <message>
        <source>Copy exception %1 to</source>
        <translation>Ausnahme %1 kopieren nach</translation>
    </message>
    <message>
        <source>up to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>Nothing was copied, because another window is open. Close it first.</source>
        <translation>Es wurde nichts kopiert, weil ein anderes Fenster geöffnet ist. Schließen Sie es zuerst.</translation>
    </message>
    <message>
        <source>Copy to...</source>
        <translation>Kopieren nach…</translation>
    </message>
    <message>
        <source>Copies the shown alarm to other numbers</source>
        <translation>Kopiert den angezeigten Alarm auf andere Nummern</translation>
    </message>
    <message>
        <source>Copies the shown exception to other numbers</source>
        <translation>Kopiert die angezeigte Ausnahme auf andere Nummern</translation>
    </message>
    <message>
        <source>Copy Exception...</source>
        <translation>Ausnahme kopieren…</translation>
    </message>
    <message>
        <source>Copy Alarm...</source>
        <translation>Alarm kopieren…</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <comment>such as: Undo ALARM DURATION</comment>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
</context>
<context>
    <name>ExceptionPage</name>
    <message>
        <source>D display</source>
        <translation>D Anzeige</translation>
    </message>
    <message>
        <source>O output</source>
        <translation>O Ausgabe</translation>
    </message>
    <message>
        <source>H history</source>
        <translation>H Verlauf</translation>
    </message>
    <message>
        <source>S scroll matching</source>
        <translation>S Mehrzeilensuche</translation>
    </message>
    <message>
        <source>A alarms</source>
        <translation>A Alarme</translation>
    </message>
    <message>
        <source>Overview of the exceptions</source>
        <translation>Übersicht der Ausnahmen</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>free</source>
        <translation>frei</translation>
    </message>
</context>
<context>
    <name>FileActs</name>
    <message>
        <source>Open Recent</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Save Backup...</source>
        <translation>Sicherung speichern…</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Nicht geöffnet: %1</translation>
    </message>
    <message>
        <source>Backup not written: %1</source>
        <translation>Sicherung nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Backup written: %1</source>
        <translation>Sicherung gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Prüfungen</translation>
    </message>
</context>
<context>
    <name>Filter</name>
    <message>
        <source>Text Forms(*.toml)|*.toml|All Files(*.*)|*.*</source>
        <translation>Textdateien (*.toml)|*.toml|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Configurations(*.bin;*.toml)|*.bin;*.toml|All Files(*.*)|*.*</source>
        <translation>Konfigurationen (*.bin;*.toml)|*.bin;*.toml|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Backups(*.bin)|*.bin|All Files(*.*)|*.*</source>
        <translation>Sicherungen (*.bin)|*.bin|Alle Dateien (*.*)|*.*</translation>
    </message>
</context>
<context>
    <name>Form</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>second</source>
        <translation>Sekunde</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Kasse</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>RANGE</source>
        <translation>BEREICH</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
    <message>
        <source>CASIO SUBMENU</source>
        <translation>CASIO-UNTERMENÜ</translation>
    </message>
    <message>
        <source>SHARP SUBMENU</source>
        <translation>SHARP-UNTERMENÜ</translation>
    </message>
    <message>
        <source>TEC SUBMENU</source>
        <translation>TEC-UNTERMENÜ</translation>
    </message>
    <message>
        <source>ALARM TRIGGER SETUP</source>
        <translation>ALARMAUSLÖSER EINSTELLEN</translation>
    </message>
    <message>
        <source>EXCEPTION SETUP</source>
        <translation>AUSNAHME EINSTELLEN</translation>
    </message>
    <message>
        <source>TITLE SETUP</source>
        <translation>TITEL EINSTELLEN</translation>
    </message>
    <message>
        <source>Upload Completed.</source>
        <translation>Auslesen abgeschlossen.</translation>
    </message>
    <message>
        <source>Upload Incompleted.</source>
        <translation>Auslesen unvollständig.</translation>
    </message>
    <message>
        <source>Connected at COM %1 %2</source>
        <translation>Verbunden mit COM-Port %1, %2</translation>
    </message>
    <message>
        <source>ACCESS</source>
        <translation>ZUGRIFF</translation>
    </message>
    <message>
        <source>%1 Bits</source>
        <translation>%1 Bits</translation>
    </message>
    <message>
        <source>%1 Character</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>%1 HOUR</source>
        <translation>%1 STUNDEN</translation>
    </message>
    <message>
        <source>%1 KITCHEN PRINTER</source>
        <translation>%1-KÜCHENDRUCKER</translation>
    </message>
    <message>
        <source>%1 LCD VERSION</source>
        <translation>%1-LCD-VERSION</translation>
    </message>
    <message>
        <source>%1 PORT</source>
        <translation>%1-ANSCHLUSS</translation>
    </message>
    <message>
        <source>%1 PRINTERS</source>
        <translation>%1-DRUCKER</translation>
    </message>
    <message>
        <source>%1 Printers SETTING</source>
        <translation>%1-DRUCKER</translation>
    </message>
    <message>
        <source>%1 REM DISPLAY</source>
        <translation>%1, EXTERNE ANZEIGE</translation>
    </message>
    <message>
        <source>%1 Sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 Sec.</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 TERMINAL</source>
        <translation>%1-TERMINAL</translation>
    </message>
    <message>
        <source>%1 [ NEW FMT ]</source>
        <translation>%1 [NEUES FORMAT]</translation>
    </message>
    <message>
        <source>%1 [ OLD FMT ]</source>
        <translation>%1 [ALTES FORMAT]</translation>
    </message>
    <message>
        <source>*** MAKE SURE HAVE UART DAUGHTER BOARD INSTALLED ***</source>
        <translation>*** DIE UART-ZUSATZPLATINE MUSS EINGEBAUT SEIN ***</translation>
    </message>
    <message>
        <source>ACK</source>
        <translation>ACK</translation>
    </message>
    <message>
        <source>ACK/NAK</source>
        <translation>ACK/NAK</translation>
    </message>
    <message>
        <source>ADDRESS</source>
        <translation>ADRESSE</translation>
    </message>
    <message>
        <source>ADS SET DISPLAY</source>
        <translation>ADS-ANZEIGE</translation>
    </message>
    <message>
        <source>ALARM DURATION</source>
        <translation>ALARMDAUER</translation>
    </message>
    <message>
        <source>ALARM NO.</source>
        <translation>ALARM-NR.</translation>
    </message>
    <message>
        <source>ALARM OUTPUTS</source>
        <translation>ALARME</translation>
    </message>
    <message>
        <source>ALARM TRIGGER</source>
        <translation>ALARMAUSLÖSER</translation>
    </message>
    <message>
        <source>ALARM TYPE</source>
        <translation>ALARMART</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>ALLE</translation>
    </message>
    <message>
        <source>ANY</source>
        <translation>ALLE</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>AUSTRALIA</source>
        <translation>AUSTRALIEN</translation>
    </message>
    <message>
        <source>AUTO</source>
        <translation>AUTO</translation>
    </message>
    <message>
        <source>AUTO LINEFEED</source>
        <translation>AUTOM. ZEILENVORSCHUB</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>About OVL Software</source>
        <translation>Info über OVL Software</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Address, first digit</source>
        <translation>Adresse, erste Ziffer</translation>
    </message>
    <message>
        <source>Address, second digit</source>
        <translation>Adresse, zweite Ziffer</translation>
    </message>
    <message>
        <source>Address, third digit</source>
        <translation>Adresse, dritte Ziffer</translation>
    </message>
    <message>
        <source>Addressing</source>
        <translation>Adressierung</translation>
    </message>
    <message>
        <source>Alarm Outputs</source>
        <translation>Alarmausgänge</translation>
    </message>
    <message>
        <source>BAUD RATE</source>
        <translation>BAUDRATE</translation>
    </message>
    <message>
        <source>BOTTOM</source>
        <translation>UNTEN</translation>
    </message>
    <message>
        <source>Baudrate Scan</source>
        <translation>Baudrate suchen</translation>
    </message>
    <message>
        <source>Baudrate Scaning..</source>
        <translation>Sucht die Baudrate…</translation>
    </message>
    <message>
        <source>CANADA</source>
        <translation>KANADA</translation>
    </message>
    <message>
        <source>CELSIUS</source>
        <translation>CELSIUS</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>SCHECK</translation>
    </message>
    <message>
        <source>CLARITY EPOS SETTING</source>
        <translation>CLARITY EPOS EINSTELLEN</translation>
    </message>
    <message>
        <source>COFFEE SHOP</source>
        <translation>CAFÉ</translation>
    </message>
    <message>
        <source>COMBINED</source>
        <translation>KOMBINIERT</translation>
    </message>
    <message>
        <source>COMMUNICATION</source>
        <translation>SCHNITTSTELLE</translation>
    </message>
    <message>
        <source>CONSOLE</source>
        <translation>KONSOLE</translation>
    </message>
    <message>
        <source>CONVENIENCE STORE</source>
        <translation>MINIMARKT</translation>
    </message>
    <message>
        <source>CREDIT</source>
        <translation>KREDIT</translation>
    </message>
    <message>
        <source>CRSOSS %1</source>
        <translation>CRSOSS %1</translation>
    </message>
    <message>
        <source>CSL OLD</source>
        <translation>CSL (ALT)</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>KUNDE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Communication Setting</source>
        <translation>Schnittstelle einstellen</translation>
    </message>
    <message>
        <source>Comport %1</source>
        <translation>COM-Port %1</translation>
    </message>
    <message>
        <source>Console ID</source>
        <translation>Konsolen-ID</translation>
    </message>
    <message>
        <source>DALLMEIER</source>
        <translation>DALLMEIER</translation>
    </message>
    <message>
        <source>DATA BITS</source>
        <translation>DATENBITS</translation>
    </message>
    <message>
        <source>DATE FORMAT</source>
        <translation>DATUMSFORMAT</translation>
    </message>
    <message>
        <source>DAYLIGHT SAVING</source>
        <translation>SOMMERZEIT</translation>
    </message>
    <message>
        <source>DELTA JOURNAL</source>
        <translation>DELTA-JOURNAL</translation>
    </message>
    <message>
        <source>DELTA RECEIPT</source>
        <translation>DELTA-BELEG</translation>
    </message>
    <message>
        <source>DELTA SETTING</source>
        <translation>DELTA EINSTELLEN</translation>
    </message>
    <message>
        <source>DESCRIPTION/XML</source>
        <translation>BESCHREIBUNG/XML</translation>
    </message>
    <message>
        <source>DEST ID</source>
        <translation>ZIEL-ID</translation>
    </message>
    <message>
        <source>DESTIN TYPE</source>
        <translation>ZIELTYP</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>QUELLE</translation>
    </message>
    <message>
        <source>DEVICE ADDRESS</source>
        <translation>QUELLADRESSE</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>KEINE</translation>
    </message>
    <message>
        <source>DISPLAY</source>
        <translation>ANZEIGE</translation>
    </message>
    <message>
        <source>DISPLAY CHARACTER / LINE</source>
        <translation>ZEICHEN JE ZEILE</translation>
    </message>
    <message>
        <source>DISPLAY FORMAT</source>
        <translation>TEXTPOSITION</translation>
    </message>
    <message>
        <source>DISPLAY LINE</source>
        <translation>ANZEIGEZEILEN</translation>
    </message>
    <message>
        <source>DISPLAY TEXT</source>
        <translation>TEXT ANZEIGEN</translation>
    </message>
    <message>
        <source>DOUBLE CHAR PRINTER</source>
        <translation>DRUCKER MIT DOPPELZEICHEN</translation>
    </message>
    <message>
        <source>DRESSER WAYNE SETTING</source>
        <translation>DRESSER WAYNE EINSTELLEN</translation>
    </message>
    <message>
        <source>DST IDN ID</source>
        <translation>ZIEL-IDN-ID</translation>
    </message>
    <message>
        <source>DST ISN GNA</source>
        <translation>ZIEL-ISN-GNA</translation>
    </message>
    <message>
        <source>DST ISN LNA</source>
        <translation>ZIEL-ISN-LNA</translation>
    </message>
    <message>
        <source>DUPLICATE LINE</source>
        <translation>DOPPELTE ZEILEN</translation>
    </message>
    <message>
        <source>DVR Selection</source>
        <translation>Auswahl des Rekorders</translation>
    </message>
    <message>
        <source>DWELL</source>
        <translation>VERWEILEN</translation>
    </message>
    <message>
        <source>Decimal separator</source>
        <translation>Dezimaltrennzeichen</translation>
    </message>
    <message>
        <source>Demo On Power Up</source>
        <translation>Demo nach dem Einschalten</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Device address</source>
        <translation>Quelladresse</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Download Completed.</source>
        <translation>Schreiben abgeschlossen.</translation>
    </message>
    <message>
        <source>Downloading . . .</source>
        <translation>Schreibt…</translation>
    </message>
    <message>
        <source>ECR NUMBER</source>
        <translation>KASSENNUMMER</translation>
    </message>
    <message>
        <source>EDACOM MODEL SETTING</source>
        <translation>EDACOM-MODELL EINSTELLEN</translation>
    </message>
    <message>
        <source>EMAX</source>
        <translation>EMAX</translation>
    </message>
    <message>
        <source>EMULATE</source>
        <translation>EMULIEREN</translation>
    </message>
    <message>
        <source>EMULATE US</source>
        <translation>EMULIEREN US</translation>
    </message>
    <message>
        <source>EMULATING</source>
        <translation>EMULIEREN</translation>
    </message>
    <message>
        <source>EPSON JOURNAL</source>
        <translation>EPSON-JOURNAL</translation>
    </message>
    <message>
        <source>EPSON RECEIPT</source>
        <translation>EPSON-BELEG</translation>
    </message>
    <message>
        <source>ESSO POLE DISPLAY</source>
        <translation>ESSO-KUNDENANZEIGE</translation>
    </message>
    <message>
        <source>EUROPAD</source>
        <translation>EUROPAD</translation>
    </message>
    <message>
        <source>EVEN</source>
        <translation>GERADE</translation>
    </message>
    <message>
        <source>EXCEPTION NO.</source>
        <translation>AUSNAHME-NR.</translation>
    </message>
    <message>
        <source>EXCEPTION REPORT</source>
        <translation>AUSNAHMEN</translation>
    </message>
    <message>
        <source>EXCEPTION STRING</source>
        <translation>SUCHTEXT</translation>
    </message>
    <message>
        <source>EXTERNAL CUSTOM DISPLAY</source>
        <translation>EXTERNE KUNDENANZEIGE</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>Exception Report</source>
        <translation>Ausnahmemeldung</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>FAHRENHEIT</source>
        <translation>FAHRENHEIT</translation>
    </message>
    <message>
        <source>FAST FOOD</source>
        <translation>SCHNELLIMBISS</translation>
    </message>
    <message>
        <source>FLAG DURATION</source>
        <translation>MARKIERUNGSDAUER</translation>
    </message>
    <message>
        <source>FLAG TYPE</source>
        <translation>MARKIERUNG</translation>
    </message>
    <message>
        <source>FLASH</source>
        <translation>BLINKEND</translation>
    </message>
    <message>
        <source>FLASH *</source>
        <translation>BLINKEND *</translation>
    </message>
    <message>
        <source>FUJITSU %1 SET DISPLAY</source>
        <translation>FUJITSU-%1-ANZEIGE</translation>
    </message>
    <message>
        <source>FUJITSU SETTINGS</source>
        <translation>FUJITSU EINSTELLEN</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Erster Wert</translation>
    </message>
    <message>
        <source>First value, decimals</source>
        <translation>Erster Wert, Nachkommastellen</translation>
    </message>
    <message>
        <source>GASBOY SETTING</source>
        <translation>GASBOY EINSTELLEN</translation>
    </message>
    <message>
        <source>GENERIC</source>
        <translation>ALLGEMEIN</translation>
    </message>
    <message>
        <source>GILBRACO</source>
        <translation>GILBRACO</translation>
    </message>
    <message>
        <source>GRAPHIC FILTER</source>
        <translation>GRAFIKFILTER</translation>
    </message>
    <message>
        <source>GROCERY</source>
        <translation>LEBENSMITTEL</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Gold %1</source>
        <translation>Gold %1</translation>
    </message>
    <message>
        <source>HANDSHAKE</source>
        <translation>HANDSHAKE</translation>
    </message>
    <message>
        <source>HANDSHAKING</source>
        <translation>HANDSHAKE</translation>
    </message>
    <message>
        <source>HISTORY BUFFER</source>
        <translation>VERLAUFSSPEICHER</translation>
    </message>
    <message>
        <source>HW HANDSHAKING</source>
        <translation>HW-HANDSHAKE</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>I-CNTRL INT JAVELIN VIPER</source>
        <translation>I-CNTRL INT JAVELIN VIPER</translation>
    </message>
    <message>
        <source>IBM RDS SET DISPLAY</source>
        <translation>IBM-RDS-ANZEIGE</translation>
    </message>
    <message>
        <source>IN</source>
        <translation>IN</translation>
    </message>
    <message>
        <source>INFORMATION %1</source>
        <translation>INFORMATION %1</translation>
    </message>
    <message>
        <source>INTERFACE TYPE</source>
        <translation>ANSCHLUSSART</translation>
    </message>
    <message>
        <source>IP ADDRESS %1</source>
        <translation>IP-ADRESSE %1</translation>
    </message>
    <message>
        <source>IP AND INFORMATION CONFIG</source>
        <translation>IP UND INFORMATION</translation>
    </message>
    <message>
        <source>JMC</source>
        <translation>JMC</translation>
    </message>
    <message>
        <source>JOURNAL</source>
        <translation>JOURNAL</translation>
    </message>
    <message>
        <source>JOURNAL EMULATING</source>
        <translation>JOURNAL EMULIEREN</translation>
    </message>
    <message>
        <source>JOURNAL PRINTER</source>
        <translation>JOURNALDRUCKER</translation>
    </message>
    <message>
        <source>JOURNAL PRINTER ONLY</source>
        <translation>NUR JOURNALDRUCKER</translation>
    </message>
    <message>
        <source>JOURNAL TAPPING</source>
        <translation>JOURNAL MITHÖREN</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>SPRACHE</translation>
    </message>
    <message>
        <source>LINE COMPRESS</source>
        <translation>LEERZEILEN WEGLASSEN</translation>
    </message>
    <message>
        <source>LINE JUSTIFIED</source>
        <translation>ZEILEN AUSRICHTEN</translation>
    </message>
    <message>
        <source>LOAD HISTORY</source>
        <translation>VERLAUF AUSLESEN</translation>
    </message>
    <message>
        <source>LOCAL VSS</source>
        <translation>LOCAL VSS</translation>
    </message>
    <message>
        <source>Language Settings</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>MANUAL</source>
        <translation>MANUELL</translation>
    </message>
    <message>
        <source>MASTER</source>
        <translation>MASTER</translation>
    </message>
    <message>
        <source>MASTER RESET</source>
        <translation>ZURÜCKSETZEN</translation>
    </message>
    <message>
        <source>MERIT</source>
        <translation>MERIT</translation>
    </message>
    <message>
        <source>MICRELEC MODE</source>
        <translation>MICRELEC-MODUS</translation>
    </message>
    <message>
        <source>MICROS</source>
        <translation>MICROS</translation>
    </message>
    <message>
        <source>MICROS %1 %2</source>
        <translation>MICROS %1 %2</translation>
    </message>
    <message>
        <source>MICROS IDN NETWORK</source>
        <translation>MICROS-IDN-NETZWERK</translation>
    </message>
    <message>
        <source>MICROS ISN NETWORK</source>
        <translation>MICROS-ISN-NETZWERK</translation>
    </message>
    <message>
        <source>MICROSS %1 %2</source>
        <translation>MICROSS %1 %2</translation>
    </message>
    <message>
        <source>MILLENIUM</source>
        <translation>MILLENIUM</translation>
    </message>
    <message>
        <source>MIT licence</source>
        <translation>MIT-Lizenz</translation>
    </message>
    <message>
        <source>MIXED</source>
        <translation>GEMISCHT</translation>
    </message>
    <message>
        <source>MODE</source>
        <translation>MODUS</translation>
    </message>
    <message>
        <source>Make sure you are select correct the comport.</source>
        <translation>Achten Sie darauf, den richtigen COM-Port zu wählen.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>NC</source>
        <translation>NC</translation>
    </message>
    <message>
        <source>NCR %1</source>
        <translation>NCR %1</translation>
    </message>
    <message>
        <source>NCR %1 %2</source>
        <translation>NCR %1 %2</translation>
    </message>
    <message>
        <source>NCR %1 (EMULATE)</source>
        <translation>NCR %1 (EMULIEREN)</translation>
    </message>
    <message>
        <source>NCR %1 (POLE)</source>
        <translation>NCR %1 (KUNDENANZEIGE)</translation>
    </message>
    <message>
        <source>NCR %1 (TAP)</source>
        <translation>NCR %1 (MITHÖREN)</translation>
    </message>
    <message>
        <source>NCR %1 [POLE]</source>
        <translation>NCR %1 [KUNDENANZEIGE]</translation>
    </message>
    <message>
        <source>NCR JOURNAL PRINTER</source>
        <translation>NCR-JOURNALDRUCKER</translation>
    </message>
    <message>
        <source>NCR JRNL PRINTER</source>
        <translation>NCR-JOURNALDRUCKER</translation>
    </message>
    <message>
        <source>NCR MODEL</source>
        <translation>NCR-MODELL</translation>
    </message>
    <message>
        <source>NCR RCPT PRINTER</source>
        <translation>NCR-BELEGDRUCKER</translation>
    </message>
    <message>
        <source>NCR RECEIPT PRINTER</source>
        <translation>NCR-BELEGDRUCKER</translation>
    </message>
    <message>
        <source>NCR SLIP PRINTER</source>
        <translation>NCR-SLIPDRUCKER</translation>
    </message>
    <message>
        <source>NIXDORF BEETLE</source>
        <translation>NIXDORF BEETLE</translation>
    </message>
    <message>
        <source>NIXDORF BEETLE SETTING</source>
        <translation>NIXDORF BEETLE EINSTELLEN</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>NO</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>OHNE</translation>
    </message>
    <message>
        <source>NORAND</source>
        <translation>NORAND</translation>
    </message>
    <message>
        <source>NORBAIN VISTA</source>
        <translation>NORBAIN VISTA</translation>
    </message>
    <message>
        <source>NORMAL STATE</source>
        <translation>RUHEZUSTAND</translation>
    </message>
    <message>
        <source>NUCLEUS PRINTER SETTING</source>
        <translation>NUCLEUS-DRUCKER EINSTELLEN</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>No Access</source>
        <translation>Kein Zugriff</translation>
    </message>
    <message>
        <source>Not Connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>ODD</source>
        <translation>UNGERADE</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>OMEGA %1 SETTING</source>
        <translation>OMEGA %1 EINSTELLEN</translation>
    </message>
    <message>
        <source>OMRON</source>
        <translation>OMRON</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>ONET</source>
        <translation>ONET</translation>
    </message>
    <message>
        <source>OPERATOR</source>
        <translation>VERGLEICH</translation>
    </message>
    <message>
        <source>OPERATOR DISPLAY</source>
        <translation>BEDIENERANZEIGE</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>OUT</translation>
    </message>
    <message>
        <source>OUTPUT</source>
        <translation>AUSGABE</translation>
    </message>
    <message>
        <source>OUTPUT CHARACTER / LINE</source>
        <translation>AUSGABEZEICHEN JE ZEILE</translation>
    </message>
    <message>
        <source>OUTPUT TEXT</source>
        <translation>TEXT AUSGEBEN</translation>
    </message>
    <message>
        <source>OVL Software</source>
        <translation>OVL Software</translation>
    </message>
    <message>
        <source>OVL-ADD</source>
        <translation>OVL-ADD</translation>
    </message>
    <message>
        <source>OVL-DRS</source>
        <translation>OVL-DRS</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open History</source>
        <translation>Verlauf öffnen</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>PANASONIC</source>
        <translation>PANASONIC</translation>
    </message>
    <message>
        <source>PAR</source>
        <translation>PAR</translation>
    </message>
    <message>
        <source>PARAGON CLARITY SMARTPAD</source>
        <translation>PARAGON CLARITY SMARTPAD</translation>
    </message>
    <message>
        <source>PARITY</source>
        <translation>PARITÄT</translation>
    </message>
    <message>
        <source>PASSIVE TAP</source>
        <translation>PASSIVER ABGRIFF</translation>
    </message>
    <message>
        <source>PASSPORT</source>
        <translation>PASSPORT</translation>
    </message>
    <message>
        <source>PASSPORT (XML FMT)</source>
        <translation>PASSPORT (XML-FORMAT)</translation>
    </message>
    <message>
        <source>PC G-SITE</source>
        <translation>PC G-SITE</translation>
    </message>
    <message>
        <source>PIZZA SHOP</source>
        <translation>PIZZERIA</translation>
    </message>
    <message>
        <source>PLUSE</source>
        <translation>IMPULS</translation>
    </message>
    <message>
        <source>POLE DISPLAY</source>
        <translation>KUNDENANZEIGE</translation>
    </message>
    <message>
        <source>POLE DISPLAY %1</source>
        <translation>KUNDENANZEIGE %1</translation>
    </message>
    <message>
        <source>POLE VIA PRINTER</source>
        <translation>ANZEIGE ÜBER DRUCKER</translation>
    </message>
    <message>
        <source>POS %1</source>
        <translation>POS %1</translation>
    </message>
    <message>
        <source>POSIFLEX</source>
        <translation>POSIFLEX</translation>
    </message>
    <message>
        <source>PRINTER</source>
        <translation>DRUCKER</translation>
    </message>
    <message>
        <source>PRINTER WITH POLE</source>
        <translation>DRUCKER MIT ANZEIGE</translation>
    </message>
    <message>
        <source>PRINTER/CUSTOMER DISPLAY</source>
        <translation>DRUCKER/KUNDENANZEIGE</translation>
    </message>
    <message>
        <source>PROSPER</source>
        <translation>PROSPER</translation>
    </message>
    <message>
        <source>PROTOCOL</source>
        <translation>PROTOKOLL</translation>
    </message>
    <message>
        <source>Point of sale</source>
        <translation>Kassenplatz</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Printer of the %1</source>
        <translation>Drucker der %1</translation>
    </message>
    <message>
        <source>Printer or display</source>
        <translation>Drucker oder Anzeige</translation>
    </message>
    <message>
        <source>Printer, %1</source>
        <translation>Drucker, %1</translation>
    </message>
    <message>
        <source>Program Download</source>
        <translation>Konfiguration schreiben</translation>
    </message>
    <message>
        <source>RDS</source>
        <translation>RDS</translation>
    </message>
    <message>
        <source>REALPOS %1</source>
        <translation>REALPOS %1</translation>
    </message>
    <message>
        <source>RECEIPT</source>
        <translation>BELEG</translation>
    </message>
    <message>
        <source>RECEIPT EMULATING</source>
        <translation>BELEG EMULIEREN</translation>
    </message>
    <message>
        <source>RECEIPT PRINTER</source>
        <translation>BELEGDRUCKER</translation>
    </message>
    <message>
        <source>RECEIPT TAPPING</source>
        <translation>BELEG MITHÖREN</translation>
    </message>
    <message>
        <source>RECIEPT PRINTER ONLY</source>
        <translation>NUR BELEGDRUCKER</translation>
    </message>
    <message>
        <source>REDWOOD %1</source>
        <translation>REDWOOD %1</translation>
    </message>
    <message>
        <source>REGCOM %1</source>
        <translation>REGCOM %1</translation>
    </message>
    <message>
        <source>REGISTER SELECT</source>
        <translation>KASSE</translation>
    </message>
    <message>
        <source>REMOTE</source>
        <translation>FERNSTEUERUNG</translation>
    </message>
    <message>
        <source>REMOTE SLIP</source>
        <translation>EXTERNER BELEG</translation>
    </message>
    <message>
        <source>RETAIL STORE</source>
        <translation>EINZELHANDEL</translation>
    </message>
    <message>
        <source>REVERSE</source>
        <translation>INVERS</translation>
    </message>
    <message>
        <source>RIVA</source>
        <translation>RIVA</translation>
    </message>
    <message>
        <source>RTS</source>
        <translation>RTS</translation>
    </message>
    <message>
        <source>RTS TRIGGERED TEXT DELAY</source>
        <translation>TEXTVERZÖGERUNG NACH RTS</translation>
    </message>
    <message>
        <source>RX BAUDRATE</source>
        <translation>RX-BAUDRATE</translation>
    </message>
    <message>
        <source>Register Demo</source>
        <translation>Kassendemo</translation>
    </message>
    <message>
        <source>Register ID</source>
        <translation>Kassen-ID</translation>
    </message>
    <message>
        <source>Register ID, first digit</source>
        <translation>Kassen-ID, erste Ziffer</translation>
    </message>
    <message>
        <source>Register ID, second digit</source>
        <translation>Kassen-ID, zweite Ziffer</translation>
    </message>
    <message>
        <source>Register ID, third digit</source>
        <translation>Kassen-ID, dritte Ziffer</translation>
    </message>
    <message>
        <source>Register Settings</source>
        <translation>Kasseneinstellungen</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Fernsteuern</translation>
    </message>
    <message>
        <source>Remote Function</source>
        <translation>Fernsteuerung</translation>
    </message>
    <message>
        <source>SAMSUNG</source>
        <translation>SAMSUNG</translation>
    </message>
    <message>
        <source>SCREEN BLANK</source>
        <translation>BILD LEEREN NACH</translation>
    </message>
    <message>
        <source>SCROLL DELAY</source>
        <translation>ROLLVERZÖGERUNG</translation>
    </message>
    <message>
        <source>SCROLL MATCHING</source>
        <translation>MEHRZEILENSUCHE</translation>
    </message>
    <message>
        <source>SECURITY</source>
        <translation>SICHERHEIT</translation>
    </message>
    <message>
        <source>SET</source>
        <translation>ÜBERNEHMEN</translation>
    </message>
    <message>
        <source>SET ADDRESS</source>
        <translation>ADRESSE EINSTELLEN</translation>
    </message>
    <message>
        <source>SET IP ADDRESS</source>
        <translation>IP-ADRESSE EINSTELLEN</translation>
    </message>
    <message>
        <source>SET MODEL</source>
        <translation>MODELL EINSTELLEN</translation>
    </message>
    <message>
        <source>SET TIME</source>
        <translation>UHR STELLEN</translation>
    </message>
    <message>
        <source>SHARP %1 %2 SET DISPLAY</source>
        <translation>SHARP-%1-%2-ANZEIGE</translation>
    </message>
    <message>
        <source>SHARP MODEL</source>
        <translation>SHARP-MODELL</translation>
    </message>
    <message>
        <source>SHOW</source>
        <translation>ANZEIGEN</translation>
    </message>
    <message>
        <source>SICOM</source>
        <translation>SICOM</translation>
    </message>
    <message>
        <source>SLAVE</source>
        <translation>SLAVE</translation>
    </message>
    <message>
        <source>SLIP PRINTER ONLY</source>
        <translation>NUR SLIPDRUCKER</translation>
    </message>
    <message>
        <source>SNA SOFTWARE</source>
        <translation>SNA-SOFTWARE</translation>
    </message>
    <message>
        <source>SOURCE TYPE</source>
        <translation>QUELLTYP</translation>
    </message>
    <message>
        <source>SPACE COMPRESS</source>
        <translation>LEERZEICHEN BEGRENZEN</translation>
    </message>
    <message>
        <source>SPEDI CCTV SET ADDRESS</source>
        <translation>SPEDI-CCTV-ADRESSE</translation>
    </message>
    <message>
        <source>SRC ID</source>
        <translation>QUELL-ID</translation>
    </message>
    <message>
        <source>SRC IDN ID</source>
        <translation>QUELL-IDN-ID</translation>
    </message>
    <message>
        <source>SRC ISN GNA</source>
        <translation>QUELL-ISN-GNA</translation>
    </message>
    <message>
        <source>SRC ISN LNA</source>
        <translation>QUELL-ISN-LNA</translation>
    </message>
    <message>
        <source>STANDARD</source>
        <translation>STANDARD</translation>
    </message>
    <message>
        <source>STANDARD (Both)</source>
        <translation>STANDARD (BEIDE)</translation>
    </message>
    <message>
        <source>SUNTRONIC</source>
        <translation>SUNTRONIC</translation>
    </message>
    <message>
        <source>SURE POS / %1</source>
        <translation>SURE POS / %1</translation>
    </message>
    <message>
        <source>SW HANDSHAKING</source>
        <translation>SW-HANDSHAKE</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Waage</translation>
    </message>
    <message>
        <source>Scan Baudrate</source>
        <translation>Baudrate suchen</translation>
    </message>
    <message>
        <source>Scroll Matching</source>
        <translation>Mehrzeilensuche</translation>
    </message>
    <message>
        <source>Second value</source>
        <translation>Zweiter Wert</translation>
    </message>
    <message>
        <source>Second value, decimals</source>
        <translation>Zweiter Wert, Nachkommastellen</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message>
        <source>Set Comport</source>
        <translation>COM-Port einstellen</translation>
    </message>
    <message>
        <source>Set Exception</source>
        <translation>Ausnahme</translation>
    </message>
    <message>
        <source>Set Exception String</source>
        <translation>Text…</translation>
    </message>
    <message>
        <source>Set RANGE</source>
        <translation>Bereich…</translation>
    </message>
    <message>
        <source>Set Title</source>
        <translation>Titel…</translation>
    </message>
    <message>
        <source>Set Trigger Text</source>
        <translation>Text…</translation>
    </message>
    <message>
        <source>Show Detail</source>
        <translation>Details anzeigen</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Speed Per Line</source>
        <translation>Zeit je Zeile</translation>
    </message>
    <message>
        <source>T/D DISPLAY</source>
        <translation>UHR ANZEIGEN</translation>
    </message>
    <message>
        <source>T/D LOCKING</source>
        <translation>UHR SPERREN</translation>
    </message>
    <message>
        <source>TAP</source>
        <translation>MITHÖREN</translation>
    </message>
    <message>
        <source>TAP US</source>
        <translation>MITHÖREN US</translation>
    </message>
    <message>
        <source>TAPPING</source>
        <translation>MITHÖREN</translation>
    </message>
    <message>
        <source>TASMANIA</source>
        <translation>TASMANIEN</translation>
    </message>
    <message>
        <source>TCI ADDRESS</source>
        <translation>TCI-ADRESSE</translation>
    </message>
    <message>
        <source>TEAM POS %1</source>
        <translation>TEAM POS %1</translation>
    </message>
    <message>
        <source>TEAM POS %1 - CBE</source>
        <translation>TEAM POS %1 - CBE</translation>
    </message>
    <message>
        <source>TEAM POS %1 - ISTORE</source>
        <translation>TEAM POS %1 - ISTORE</translation>
    </message>
    <message>
        <source>TEC SLIP PRINTER</source>
        <translation>TEC-SLIPDRUCKER</translation>
    </message>
    <message>
        <source>TEC SLIP PRINTER EMULATE</source>
        <translation>TEC-SLIPDRUCKER EMULIEREN</translation>
    </message>
    <message>
        <source>TERMINAL</source>
        <translation>TERMINAL</translation>
    </message>
    <message>
        <source>TERMINAL %1</source>
        <translation>TERMINAL %1</translation>
    </message>
    <message>
        <source>TEXT SETUP</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>ZEIT</translation>
    </message>
    <message>
        <source>TIME / LANGUAGE</source>
        <translation>ZEIT/SPRACHE</translation>
    </message>
    <message>
        <source>TIME FORMAT</source>
        <translation>ZEITFORMAT</translation>
    </message>
    <message>
        <source>TIME STAMP</source>
        <translation>ZEITSTEMPEL</translation>
    </message>
    <message>
        <source>TIMED</source>
        <translation>ZEIT</translation>
    </message>
    <message>
        <source>TIMEOUT</source>
        <translation>WARTEZEIT</translation>
    </message>
    <message>
        <source>TITLE</source>
        <translation>TITEL</translation>
    </message>
    <message>
        <source>TITLER</source>
        <translation>TITEL ANZEIGEN</translation>
    </message>
    <message>
        <source>TKMAXX SETTING</source>
        <translation>TKMAXX EINSTELLEN</translation>
    </message>
    <message>
        <source>TOP</source>
        <translation>OBEN</translation>
    </message>
    <message>
        <source>TPIF PRINTER ADAPTER</source>
        <translation>TPIF-DRUCKERADAPTER</translation>
    </message>
    <message>
        <source>TRIGGER TEXT</source>
        <translation>ALARMTEXT</translation>
    </message>
    <message>
        <source>TRIGGERED TEXT</source>
        <translation>ALARMTEXT</translation>
    </message>
    <message>
        <source>TRVX</source>
        <translation>TRVX</translation>
    </message>
    <message>
        <source>TX BAUDRATE</source>
        <translation>TX-BAUDRATE</translation>
    </message>
    <message>
        <source>TX PROTOCOL</source>
        <translation>TX-PROTOKOLL</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TYP</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text Display Settings</source>
        <translation>Textanzeige</translation>
    </message>
    <message>
        <source>Text source</source>
        <translation>Textquelle</translation>
    </message>
    <message>
        <source>Time / Date Settings</source>
        <translation>Uhrzeit und Datum</translation>
    </message>
    <message>
        <source>Title display</source>
        <translation>Titelanzeige</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>UNIWELL</source>
        <translation>UNIWELL</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Auslesen</translation>
    </message>
    <message>
        <source>Uploading . . .</source>
        <translation>Liest aus…</translation>
    </message>
    <message>
        <source>Use Current Time Date</source>
        <translation>Uhr des Computers verwenden</translation>
    </message>
    <message>
        <source>VECTRON</source>
        <translation>VECTRON</translation>
    </message>
    <message>
        <source>VERIFONE</source>
        <translation>VERIFONE</translation>
    </message>
    <message>
        <source>VIDEO</source>
        <translation>VIDEO</translation>
    </message>
    <message>
        <source>VIDEO LOSS</source>
        <translation>VIDEOVERLUST</translation>
    </message>
    <message>
        <source>VIDEO SYSTEM</source>
        <translation>VIDEOSYSTEM</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Version ID</source>
        <translation>Versions-ID</translation>
    </message>
    <message>
        <source>W.OUT</source>
        <translation>W.OUT</translation>
    </message>
    <message>
        <source>WEIGH SCALE SETTING</source>
        <translation>WAAGE EINSTELLEN</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>Verdrahtung</translation>
    </message>
    <message>
        <source>XON/XOFF</source>
        <translation>XON/XOFF</translation>
    </message>
    <message>
        <source>Baudrate</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>Comport</source>
        <translation>COM-Port</translation>
    </message>
    <message>
        <source>Data Bits</source>
        <translation>Datenbits</translation>
    </message>
    <message>
        <source>Parity</source>
        <translation>Parität</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>The manual folder cannot be opened.

%1: %2</source>
        <translation>Der Ordner der Handbücher lässt sich nicht öffnen.

%1: %2</translation>
    </message>
    <message>
        <source>no program is installed that opens folders</source>
        <translation>es gibt kein Programm zum Öffnen von Ordnern</translation>
    </message>
    <message>
        <source>Open the manual folder</source>
        <translation>Ordner der Handbücher öffnen</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source># This page is missing

The help page %1 cannot be read: %2. The program works without it.</source>
        <translation># Diese Seite fehlt

Die Hilfeseite %1 lässt sich nicht lesen: %2. Das Programm funktioniert ohne sie.</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Hilfeseite</translation>
    </message>
    <message>
        <source>Search all pages</source>
        <translation>Alle Seiten durchsuchen</translation>
    </message>
    <message>
        <source>Search all pages (Ctrl+F)</source>
        <translation>Alle Seiten durchsuchen (Strg+F)</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>There are no help pages in %1. The program works without them.</source>
        <translation>In %1 gibt es keine Hilfeseiten. Das Programm funktioniert ohne sie.</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>Keine Seite enthält alle diese Wörter.</translation>
    </message>
</context>
<context>
    <name>LinkDrawing</name>
    <message>
        <source>Port closed</source>
        <translation>COM-Port geschlossen</translation>
    </message>
    <message>
        <source>Port open</source>
        <translation>COM-Port geöffnet</translation>
    </message>
    <message>
        <source>Requesting remote mode</source>
        <translation>Fernsteuerung angefordert</translation>
    </message>
    <message>
        <source>In remote mode</source>
        <translation>Ferngesteuert</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Liest aus</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Schreibt</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Sucht</translation>
    </message>
    <message>
        <source>Device lost</source>
        <translation>COM-Port ausgefallen</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Comport %1</source>
        <translation>COM-Port %1</translation>
    </message>
    <message>
        <source>Link to the unit: %1</source>
        <translation>Verbindung zum Gerät: %1</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Gerät</translation>
    </message>
</context>
<context>
    <name>LinkWindows</name>
    <message>
        <source>%1, present</source>
        <comment>a device</comment>
        <translation>%1, vorhanden</translation>
    </message>
    <message>
        <source>%1, not present</source>
        <translation>%1, nicht vorhanden</translation>
    </message>
    <message>
        <source>Comport</source>
        <translation>COM-Port</translation>
    </message>
    <message>
        <source>Progress of the baud rate scan</source>
        <translation>Fortschritt der Baudratensuche</translation>
    </message>
    <message>
        <source>%1 baud</source>
        <translation>%1 Baud</translation>
    </message>
</context>
<context>
    <name>List</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>exception %1</source>
        <translation>Ausnahme %1</translation>
    </message>
    <message>
        <source>exceptions %1</source>
        <translation>Ausnahmen %1</translation>
    </message>
    <message>
        <source>alarm %1</source>
        <translation>Alarm %1</translation>
    </message>
    <message>
        <source>alarms %1</source>
        <translation>Alarmen %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>OverviewList</name>
    <message>
        <source>%1 of %2 in use</source>
        <translation>%1 von %2 belegt</translation>
    </message>
    <message>
        <source>Move with the arrow keys, and pick with Enter.</source>
        <translation>Bewegen Sie sich mit den Pfeiltasten und wählen Sie mit der Eingabetaste.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The program keeps the settings of this tab unchanged.</source>
        <translation>Das Programm behält die Einstellungen dieser Registerkarte unverändert bei.</translation>
    </message>
</context>
<context>
    <name>PrintItem</name>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>Site sheet printed</source>
        <translation>Konfigurationsblatt gedruckt</translation>
    </message>
    <message>
        <source>The site sheet was not printed</source>
        <translation>Das Konfigurationsblatt wurde nicht gedruckt</translation>
    </message>
    <message>
        <source>Print Site Sheet...</source>
        <translation>Konfigurationsblatt drucken…</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>The program folder could not be created.

%1</source>
        <translation>Der Programmordner lässt sich nicht anlegen.

%1</translation>
    </message>
    <message>
        <source>%1
To set the firmware, run as root, for instance: ovl-setup V1400 R12</source>
        <translation>%1
Die Firmware legt root fest, zum Beispiel mit: ovl-setup V1400 R12</translation>
    </message>
    <message>
        <source>%1
The next start uses the same firmware as this one. To set the other one, run as root: ovl-setup %2</source>
        <translation>%1
Der nächste Start verwendet dieselbe Firmware wie dieser. Eine andere legt root fest mit: ovl-setup %2</translation>
    </message>
    <message>
        <source>The program cannot keep a copy of your changes. %1</source>
        <translation>Das Programm kann keine Kopie Ihrer Änderungen anlegen. %1</translation>
    </message>
    <message>
        <source>%1 contains rescued changes. Open it with &quot;File&quot;, &quot;Open&quot;</source>
        <translation>%1 enthält gerettete Änderungen. Öffnen Sie die Datei mit „Datei“, „Öffnen“.</translation>
    </message>
    <message>
        <source>The program could not restart. Exit, and start it again.</source>
        <translation>Das Programm konnte nicht neu starten. Beenden Sie es und starten Sie es erneut.</translation>
    </message>
    <message>
        <source>The program cannot save the changes: %1</source>
        <translation>Das Programm kann die Änderungen nicht speichern: %1</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>The file does not fit any firmware: it is not complete, damaged, or not a configuration.</source>
        <translation>Die Datei passt zu keiner Firmware: Sie ist unvollständig, beschädigt oder keine Konfiguration.</translation>
    </message>
    <message>
        <source>The file fits %1.</source>
        <translation>Die Datei passt zu %1.</translation>
    </message>
    <message>
        <source>This program uses %1.</source>
        <translation>Dieses Programm verwendet %1.</translation>
    </message>
    <message>
        <source>Pick the firmware of the file in the Version menu first.</source>
        <translation>Wählen Sie zuerst im Menü „Version“ die Firmware der Datei.</translation>
    </message>
    <message>
        <source>Opening %1 ends the program.</source>
        <translation>Beim Öffnen von %1 wird das Programm beendet.</translation>
    </message>
    <message>
        <source>This program uses %1 and reads the file as a file of this firmware.</source>
        <translation>Dieses Programm verwendet %1 und liest die Datei wie eine Datei dieser Firmware.</translation>
    </message>
    <message>
        <source>&quot;Save&quot; under %1 writes such files. Open a backup instead.</source>
        <translation>Unter %1 erzeugt „Speichern“ solche Dateien. Eine Sicherung lässt sich dagegen öffnen.</translation>
    </message>
    <message>
        <source>Opening %1 puts settings in the wrong place.</source>
        <translation>Beim Öffnen von %1 geraten Einstellungen an die falsche Stelle.</translation>
    </message>
</context>
<context>
    <name>Reason</name>
    <message>
        <source>the value is missing</source>
        <translation>der Wert fehlt</translation>
    </message>
    <message>
        <source>a value is neither text nor number</source>
        <translation>sie enthält einen Wert, der weder Text noch Zahl ist</translation>
    </message>
    <message>
        <source>it cannot be written</source>
        <translation>sie lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>The configuration is not complete</source>
        <translation>die Konfiguration ist nicht vollständig</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No file yet</source>
        <translation>Noch keine Datei</translation>
    </message>
    <message>
        <source>Clear this list</source>
        <translation>Diese Liste leeren</translation>
    </message>
</context>
<context>
    <name>RegisterPage</name>
    <message>
        <source>Filter of the registers</source>
        <translation>Kassenfilter</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Shows only the registers whose names have all of these words (Ctrl+F).</source>
        <translation>Zeigt nur die Kassen, deren Namen alle diese Wörter enthalten (Strg+F).</translation>
    </message>
    <message numerus="yes">
        <source>Type a part of the name. Enter goes to the list. %n registers.</source>
        <translation>
            <numerusform>Tippen Sie einen Teil des Namens. Die Eingabetaste springt in die Liste. %n Kasse.</numerusform>
            <numerusform>Tippen Sie einen Teil des Namens. Die Eingabetaste springt in die Liste. %n Kassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>No register has these words.</source>
        <translation>Kein Kassenname enthält alle diese Wörter.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n registers.</source>
        <translation>
            <numerusform>%1 von %n Kasse.</numerusform>
            <numerusform>%1 von %n Kassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Kasse</translation>
    </message>
    <message>
        <source>This register has no options of its own.</source>
        <translation>Diese Kasse hat keine eigenen Optionen.</translation>
    </message>
    <message>
        <source>The options of this register are hidden: one of the stored options is not in its list. Pick the register again to load its default options.</source>
        <translation>Die Optionen dieser Kasse sind ausgeblendet: Eine der gespeicherten Optionen kommt in ihrer Liste nicht vor. Wählen Sie die Kasse noch einmal, um die Standardwerte ihrer Optionen zu laden.</translation>
    </message>
    <message>
        <source>No register is selected.</source>
        <translation>Es ist keine Kasse gewählt.</translation>
    </message>
</context>
<context>
    <name>RegisterWindows</name>
    <message>
        <source>The program stores your pick at once.</source>
        <translation>Eine Auswahl wird sofort gespeichert.</translation>
    </message>
</context>
<context>
    <name>RemotePage</name>
    <message>
        <source>The history is in %1.</source>
        <translation>Der Verlauf wurde in %1 gespeichert.</translation>
    </message>
    <message>
        <source>Resets the unit to its factory settings at once.</source>
        <translation>Setzt das Gerät sofort auf die Werkseinstellungen zurück.</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Fortschritt der Übertragung</translation>
    </message>
    <message>
        <source>Clock of the unit</source>
        <translation>Uhr des Geräts</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>not shown (%1)</source>
        <translation>nicht angezeigt (%1)</translation>
    </message>
    <message>
        <source>No control</source>
        <translation>Kein Bedienelement</translation>
    </message>
    <message>
        <source>byte</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>byte %1</source>
        <translation>Byte %1</translation>
    </message>
    <message>
        <source>bytes %1</source>
        <translation>Bytes %1</translation>
    </message>
    <message>
        <source>Alarm %1, %2</source>
        <translation>Alarm %1, %2</translation>
    </message>
    <message>
        <source>Exception %1, %2</source>
        <translation>Ausnahme %1, %2</translation>
    </message>
    <message>
        <source>free</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>Also stored: %1.</source>
        <translation>Außerdem gespeichert: %1.</translation>
    </message>
    <message>
        <source>Stored: %1, not %2.</source>
        <translation>Gespeichert: %1, nicht %2.</translation>
    </message>
</context>
<context>
    <name>SettingWindow</name>
    <message>
        <source>Enter goes to the control. Ctrl+C copies the rows.</source>
        <translation>Die Eingabetaste springt zum Bedienelement. Strg+C kopiert die Zeilen.</translation>
    </message>
    <message>
        <source>Enter goes to the setting. Ctrl+C copies rows.</source>
        <translation>Die Eingabetaste springt zur Einstellung. Strg+C kopiert die Zeilen.</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>No port chosen</source>
        <translation>Kein COM-Port gewählt</translation>
    </message>
    <message>
        <source>Comport %1, %2</source>
        <comment>number, device</comment>
        <translation>COM-Port %1, %2</translation>
    </message>
    <message>
        <source>Comport %1, %2: %3.</source>
        <translation>COM-Port %1, %2: %3.</translation>
    </message>
    <message>
        <source>The device belongs to the group %1.</source>
        <translation>Die Schnittstelle gehört der Gruppe %1.</translation>
    </message>
</context>
<context>
    <name>TextActs</name>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>Compare with File...</source>
        <translation>Mit Datei vergleichen…</translation>
    </message>
    <message>
        <source>Import Text...</source>
        <translation>Text importieren…</translation>
    </message>
    <message>
        <source>Export Text...</source>
        <translation>Text exportieren…</translation>
    </message>
    <message>
        <source>Text written: %1</source>
        <translation>Text exportiert: %1</translation>
    </message>
    <message>
        <source>Text not written: %1</source>
        <translation>Text nicht exportiert: %1</translation>
    </message>
    <message>
        <source>The program did not use %1. Nothing has changed.</source>
        <translation>%1 wurde nicht übernommen. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>%1 has errors and cannot be compared.</source>
        <translation>%1 enthält Fehler und lässt sich nicht vergleichen.</translation>
    </message>
    <message>
        <source>%1 is a text of %2. This program uses %3, which does not have all of its settings.</source>
        <translation>%1 ist ein Text für %2. Dieses Programm verwendet %3, und dort gibt es nicht alle Einstellungen dieses Texts.</translation>
    </message>
    <message>
        <source>Import the Rest</source>
        <translation>Rest importieren</translation>
    </message>
    <message>
        <source>Compare the Rest</source>
        <translation>Rest vergleichen</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Nicht importiert: %1</translation>
    </message>
    <message>
        <source>Not imported: the configuration has changed since</source>
        <translation>Nicht importiert: Die Konfiguration hat sich inzwischen geändert</translation>
    </message>
    <message>
        <source>Text imported: %1</source>
        <translation>Text importiert: %1</translation>
    </message>
    <message>
        <source>Not compared: %1 is not a configuration of %2</source>
        <translation>Nicht verglichen: %1 ist keine Konfiguration für %2</translation>
    </message>
    <message>
        <source>Not compared: %1</source>
        <translation>Nicht verglichen: %1</translation>
    </message>
</context>
<context>
    <name>TextLine</name>
    <message>
        <source>You can type only characters of Windows-1252.</source>
        <translation>Sie können nur Zeichen aus Windows-1252 eingeben.</translation>
    </message>
    <message>
        <source>You can type only digits here.</source>
        <translation>Hier können nur Ziffern eingegeben werden.</translation>
    </message>
    <message>
        <source>No more than %1 digits fit here.</source>
        <translation>Hier ist nur Platz für %1 Ziffern.</translation>
    </message>
    <message>
        <source>No more than %1 characters fit here.</source>
        <translation>Hier ist nur Platz für %1 Zeichen.</translation>
    </message>
    <message>
        <source>The program can store only characters of Windows-1252.</source>
        <translation>Nur Zeichen aus Windows-1252 können gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>TextRows</name>
    <message>
        <source>Click here to change it.</source>
        <translation>Klicken Sie hier, um die Einstellung zu ändern.</translation>
    </message>
</context>
<context>
    <name>TextWindows</name>
    <message>
        <source>%1 of %2 characters. A ? matches any character.</source>
        <translation>%1 von %2 Zeichen. Ein „?“ steht für ein beliebiges Zeichen.</translation>
    </message>
    <message>
        <source>%1 of %2 characters.</source>
        <translation>%1 von %2 Zeichen.</translation>
    </message>
    <message>
        <source>Up to %1 digits before the separator, and %2 after it: 5 becomes 05.</source>
        <translation>Bis zu %1 Ziffern vor und %2 nach dem Trennzeichen; aus 5 wird dort 05.</translation>
    </message>
    <message>
        <source>The separator is for all exceptions. The program stores it at once.</source>
        <translation>Das Trennzeichen gilt für alle Ausnahmen. Es wird sofort gespeichert.</translation>
    </message>
</context>
<context>
    <name>Tip</name>
    <message>
        <source>The register that the unit listens to. A pick loads the default settings of this register.</source>
        <translation>Die Kasse, die das Gerät mithört. Eine Auswahl lädt die Standardeinstellungen dieser Kasse.</translation>
    </message>
    <message>
        <source>The video recorder to which the unit sends its history data.</source>
        <translation>Der Videorekorder, an den das Gerät seine Verlaufsdaten sendet.</translation>
    </message>
    <message>
        <source>The address of the recorder that receives the history data.</source>
        <translation>Die Adresse des Rekorders, der die Verlaufsdaten empfängt.</translation>
    </message>
    <message>
        <source>The address of the unit when it sends the history data.</source>
        <translation>Die Adresse des Geräts, wenn es die Verlaufsdaten sendet.</translation>
    </message>
    <message>
        <source>Reads the unit&apos;s whole configuration into this program. Press Remote first. The unit then leaves remote mode.</source>
        <translation>Liest die ganze Konfiguration des Geräts in dieses Programm. Drücken Sie vorher „Fernsteuern“. Das Gerät verlässt den Fernsteuermodus.</translation>
    </message>
    <message>
        <source>Writes the configuration shown here into the unit. Press Remote first. The unit then leaves remote mode.</source>
        <translation>Schreibt die hier angezeigte Konfiguration in das Gerät. Drücken Sie vorher „Fernsteuern“. Das Gerät verlässt den Fernsteuermodus.</translation>
    </message>
    <message>
        <source>Sets the unit&apos;s clock to the date and time shown. Press Remote first. The unit then leaves remote mode.</source>
        <translation>Stellt die Uhr des Geräts auf das angezeigte Datum und die angezeigte Uhrzeit. Drücken Sie vorher „Fernsteuern“. Das Gerät verlässt den Fernsteuermodus.</translation>
    </message>
    <message>
        <source>Reads the unit&apos;s history into a text file. Press Remote first. The unit then leaves remote mode.</source>
        <translation>Liest den Verlauf des Geräts in eine Textdatei. Drücken Sie vorher „Fernsteuern“. Das Gerät verlässt den Fernsteuermodus.</translation>
    </message>
    <message>
        <source>Starts remote mode, in which the unit obeys this program. Press the button again to end remote mode.</source>
        <translation>Schaltet das Gerät in den Fernsteuermodus, in dem es diesem Programm folgt. Ein zweiter Druck beendet ihn.</translation>
    </message>
    <message>
        <source>Resets the unit to its factory settings at once, without a question. Press Remote first.</source>
        <translation>Setzt das Gerät sofort und ohne Rückfrage auf die Werkseinstellungen zurück. Drücken Sie vorher „Fernsteuern“.</translation>
    </message>
    <message>
        <source>Opens the window in which you choose and open the serial port of the unit.</source>
        <translation>Öffnet das Fenster, in dem Sie die serielle Schnittstelle des Geräts wählen und öffnen.</translation>
    </message>
    <message>
        <source>Ends remote mode and closes the serial port.</source>
        <translation>Beendet den Fernsteuermodus und schließt die serielle Schnittstelle.</translation>
    </message>
    <message>
        <source>SET TIME uses the clock of this computer. The lists below show its date and time.</source>
        <translation>UHR STELLEN benutzt die Uhr dieses Computers. Die Listen darunter zeigen ihr Datum und ihre Uhrzeit.</translation>
    </message>
    <message>
        <source>The month to which SET TIME sets the clock of the unit.</source>
        <translation>Der Monat, auf den UHR STELLEN die Uhr des Geräts stellt.</translation>
    </message>
    <message>
        <source>The day to which SET TIME sets the clock of the unit.</source>
        <translation>Der Tag, auf den UHR STELLEN die Uhr des Geräts stellt.</translation>
    </message>
    <message>
        <source>The year to which SET TIME sets the clock of the unit.</source>
        <translation>Das Jahr, auf das UHR STELLEN die Uhr des Geräts stellt.</translation>
    </message>
    <message>
        <source>The hour to which SET TIME sets the clock of the unit.</source>
        <translation>Die Stunde, auf die UHR STELLEN die Uhr des Geräts stellt.</translation>
    </message>
    <message>
        <source>The minute to which SET TIME sets the clock of the unit.</source>
        <translation>Die Minute, auf die UHR STELLEN die Uhr des Geräts stellt.</translation>
    </message>
    <message>
        <source>The second to which SET TIME sets the clock of the unit.</source>
        <translation>Die Sekunde, auf die UHR STELLEN die Uhr des Geräts stellt.</translation>
    </message>
    <message>
        <source>The progress of the transfer.</source>
        <translation>Der Fortschritt der Übertragung.</translation>
    </message>
    <message>
        <source>The serial port to which the unit is connected.</source>
        <translation>Die serielle Schnittstelle, an der das Gerät angeschlossen ist.</translation>
    </message>
    <message>
        <source>The baud rate. The unit must have the same.</source>
        <translation>Die Baudrate. Sie muss mit der des Geräts übereinstimmen.</translation>
    </message>
    <message>
        <source>The data bits of a character. The unit must have the same.</source>
        <translation>Die Datenbits eines Zeichens. Sie müssen mit denen des Geräts übereinstimmen.</translation>
    </message>
    <message>
        <source>The parity of a character. The unit must have the same.</source>
        <translation>Die Parität eines Zeichens. Sie muss mit der des Geräts übereinstimmen.</translation>
    </message>
    <message>
        <source>Opens the port with these settings.</source>
        <translation>Öffnet die Schnittstelle mit diesen Einstellungen.</translation>
    </message>
    <message>
        <source>Tries one baud rate after the other until the unit answers.</source>
        <translation>Versucht eine Baudrate nach der anderen, bis das Gerät antwortet.</translation>
    </message>
    <message>
        <source>Ends the scan and closes the port.</source>
        <translation>Beendet die Suche und schließt die Schnittstelle.</translation>
    </message>
    <message>
        <source>The kind of device that the unit replaces on the network.</source>
        <translation>Die Art des Netzwerkgeräts, dessen Stelle dieses Gerät einnimmt.</translation>
    </message>
    <message>
        <source>The address of this device. ANY means every address.</source>
        <translation>Die Adresse dieses Netzwerkgeräts. ALLE lässt jede Adresse zu.</translation>
    </message>
    <message>
        <source>Whether the unit only listens (TAP) or answers as this device (EMULATE).</source>
        <translation>Ob das Gerät nur mithört (MITHÖREN) oder anstelle des Netzwerkgeräts antwortet (EMULIEREN).</translation>
    </message>
    <message>
        <source>The unit reads only messages from this kind of device. ANY means every kind.</source>
        <translation>Das Gerät liest nur Meldungen von dieser Art von Netzwerkgerät. ALLE lässt jede Art zu.</translation>
    </message>
    <message>
        <source>The unit reads only messages from this group address. ANY means every address.</source>
        <translation>Das Gerät liest nur Meldungen von dieser Gruppenadresse. ALLE lässt jede Adresse zu.</translation>
    </message>
    <message>
        <source>The unit reads only messages from this local address. ANY means every address.</source>
        <translation>Das Gerät liest nur Meldungen von dieser lokalen Adresse. ALLE lässt jede Adresse zu.</translation>
    </message>
    <message>
        <source>The unit reads only messages from this IDN number. ANY means every number.</source>
        <translation>Das Gerät liest nur Meldungen von dieser IDN-Nummer. ALLE lässt jede Nummer zu.</translation>
    </message>
    <message>
        <source>The unit reads only messages to this kind of device. ANY means every kind.</source>
        <translation>Das Gerät liest nur Meldungen an diese Art von Netzwerkgerät. ALLE lässt jede Art zu.</translation>
    </message>
    <message>
        <source>The unit reads only messages to this group address. ANY means every address.</source>
        <translation>Das Gerät liest nur Meldungen an diese Gruppenadresse. ALLE lässt jede Adresse zu.</translation>
    </message>
    <message>
        <source>The unit reads only messages to this local address. ANY means every address.</source>
        <translation>Das Gerät liest nur Meldungen an diese lokale Adresse. ALLE lässt jede Adresse zu.</translation>
    </message>
    <message>
        <source>The unit reads only messages to this IDN number. ANY means every number.</source>
        <translation>Das Gerät liest nur Meldungen an diese IDN-Nummer. ALLE lässt jede Nummer zu.</translation>
    </message>
    <message>
        <source>Whether the unit acknowledges what the register sends.</source>
        <translation>Ob das Gerät bestätigt, was die Kasse sendet.</translation>
    </message>
    <message>
        <source>The number of the register that the unit listens to. The program stores seven digits.</source>
        <translation>Die Nummer der Kasse, die das Gerät mithört. Das Programm speichert sieben Ziffern.</translation>
    </message>
    <message>
        <source>Stores the settings of this window. If you close the window without SET, they do not change.</source>
        <translation>Speichert die Einstellungen dieses Fensters. Wenn Sie das Fenster ohne ÜBERNEHMEN schließen, ändern sie sich nicht.</translation>
    </message>
    <message>
        <source>The port of the register to which the unit is connected.</source>
        <translation>Der Anschluss der Kasse, mit dem das Gerät verbunden ist.</translation>
    </message>
    <message>
        <source>The model. You cannot change it.</source>
        <translation>Das Modell. Es lässt sich nicht ändern.</translation>
    </message>
    <message>
        <source>Whether the unit listens to the printer line (TAPPING) or answers as the printer (EMULATING).</source>
        <translation>Ob das Gerät die Druckerleitung mithört (MITHÖREN) oder als Drucker antwortet (EMULIEREN).</translation>
    </message>
    <message>
        <source>How the unit receives the text of this model. The program stores your pick at once.</source>
        <translation>Wie das Gerät den Text dieses Modells empfängt. Das Programm speichert Ihre Wahl sofort.</translation>
    </message>
    <message>
        <source>The terminal whose text the unit reads. ANY means every terminal.</source>
        <translation>Das Terminal, dessen Text das Gerät liest. ALLE lässt jedes Terminal zu.</translation>
    </message>
    <message>
        <source>Which of the 24 exceptions this tab shows. You can also pick it in the overview.</source>
        <translation>Welche der 24 Ausnahmen diese Seite zeigt. Sie lässt sich auch in der Übersicht wählen.</translation>
    </message>
    <message>
        <source>Whether the unit shows a line in the picture when this exception matches.</source>
        <translation>Ob das Gerät eine Zeile im Bild zeigt, wenn diese Ausnahme zutrifft.</translation>
    </message>
    <message>
        <source>Whether the unit sends a line on its serial line when this exception matches.</source>
        <translation>Ob das Gerät eine Zeile über seine Leitung ausgibt, wenn diese Ausnahme zutrifft.</translation>
    </message>
    <message>
        <source>Whether the unit keeps a line in its history when this exception matches.</source>
        <translation>Ob das Gerät eine Zeile in seinem Verlauf speichert, wenn diese Ausnahme zutrifft.</translation>
    </message>
    <message>
        <source>Whether a match over several lines begins with this exception. It then has no display, output or history.</source>
        <translation>Ob diese Ausnahme eine Mehrzeilensuche beginnt. Sie hat dann keine Anzeige, keine Ausgabe und keinen Verlauf.</translation>
    </message>
    <message>
        <source>Whether the unit compares the amount in the line with the two values of the range, and how.</source>
        <translation>Ob und wie das Gerät den Betrag in der Zeile mit den beiden Werten des Bereichs vergleicht.</translation>
    </message>
    <message>
        <source>The text that the unit looks for in each line of the register. &quot;?&quot; matches any character.</source>
        <translation>Der Text, den das Gerät in jeder Zeile der Kasse sucht. „?“ steht für ein beliebiges Zeichen.</translation>
    </message>
    <message>
        <source>Opens the window in which you type the text of this exception.</source>
        <translation>Öffnet das Fenster, in dem Sie den Text dieser Ausnahme eingeben.</translation>
    </message>
    <message>
        <source>The first value with which the unit compares the amount in the line.</source>
        <translation>Der erste Wert, mit dem das Gerät den Betrag in der Zeile vergleicht.</translation>
    </message>
    <message>
        <source>The second value with which the unit compares the amount in the line.</source>
        <translation>Der zweite Wert, mit dem das Gerät den Betrag in der Zeile vergleicht.</translation>
    </message>
    <message>
        <source>Opens the window in which you type the two values.</source>
        <translation>Öffnet das Fenster, in dem Sie die beiden Werte eingeben.</translation>
    </message>
    <message>
        <source>Whether the unit looks for matches over several lines.</source>
        <translation>Ob das Gerät Treffer über mehrere Zeilen sucht.</translation>
    </message>
    <message>
        <source>How long the unit waits for the rest of a match over several lines.</source>
        <translation>Wie lange das Gerät auf den Rest eines Treffers über mehrere Zeilen wartet.</translation>
    </message>
    <message>
        <source>Which of the 16 alarms this tab shows. You can also pick it in the overview.</source>
        <translation>Welchen der 16 Alarme diese Seite zeigt. Er lässt sich auch in der Übersicht wählen.</translation>
    </message>
    <message>
        <source>What triggers the alarm: nothing, one exception, a group of exceptions, or the RTS line.</source>
        <translation>Was den Alarm auslöst: nichts, eine Ausnahme, eine Gruppe von Ausnahmen oder die RTS-Leitung.</translation>
    </message>
    <message>
        <source>The number beside &quot;EX.&quot; is the number of the exception that triggers the alarm.</source>
        <translation>Die Nummer daneben ist die Nummer der Ausnahme, die den Alarm auslöst.</translation>
    </message>
    <message>
        <source>The state of the contact without an alarm: NO is open, NC is closed. You cannot change the state of alarm 9.</source>
        <translation>Der Zustand des Kontakts ohne Alarm: NO offen, NC geschlossen. Der Zustand von Alarm 9 lässt sich nicht ändern.</translation>
    </message>
    <message>
        <source>How long the unit keeps the alarm on. PLUSE is a short pulse. The program does not know the unit of time: see the manual of the unit.</source>
        <translation>Wie lange das Gerät den Alarm hält. IMPULS ist ein kurzer Impuls. Das Programm kennt die Zeiteinheit nicht: siehe das Handbuch des Geräts.</translation>
    </message>
    <message>
        <source>How the unit marks the text during an alarm. The setting is for all alarms.</source>
        <translation>Wie das Gerät den Text während eines Alarms markiert. Die Einstellung gilt für alle Alarme.</translation>
    </message>
    <message>
        <source>How long the unit keeps the mark, from 000 to 240 in steps of 2. The setting is for all alarms. The program does not know the unit of time: see the manual of the unit.</source>
        <translation>Wie lange das Gerät die Markierung zeigt, von 000 bis 240 in Schritten von 2. Die Einstellung gilt für alle Alarme. Das Programm kennt die Zeiteinheit nicht: siehe das Handbuch des Geräts.</translation>
    </message>
    <message>
        <source>Whether a lost video signal triggers this alarm. OFF: no. MANUAL: until somebody ends the alarm. A time: for this time.</source>
        <translation>Ob ein Ausfall des Videosignals diesen Alarm auslöst. AUS: nein. MANUELL: bis jemand den Alarm beendet. Eine Zeit: für diese Zeit.</translation>
    </message>
    <message>
        <source>Which of two types this alarm has, DWELL or TIMED: see the manual of the unit. If you do not know the types, keep what you uploaded. The type is not a time. It has an effect only when something triggers this alarm.</source>
        <translation>Welche von zwei Arten dieser Alarm hat, VERWEILEN oder ZEIT: siehe das Handbuch des Geräts. Wenn Sie die Arten nicht kennen, lassen Sie den ausgelesenen Wert stehen. Die Art ist keine Zeitdauer. Sie wirkt nur, wenn etwas diesen Alarm auslöst.</translation>
    </message>
    <message>
        <source>The text that the unit shows or sends during this alarm.</source>
        <translation>Der Text, den das Gerät während dieses Alarms anzeigt oder ausgibt.</translation>
    </message>
    <message>
        <source>Opens the window in which you type the text of this alarm.</source>
        <translation>Öffnet das Fenster, in dem Sie den Text dieses Alarms eingeben.</translation>
    </message>
    <message>
        <source>Whether the unit shows the text in the picture during this alarm.</source>
        <translation>Ob das Gerät den Text während dieses Alarms im Bild zeigt.</translation>
    </message>
    <message>
        <source>Whether the unit sends the text on its serial line during this alarm.</source>
        <translation>Ob das Gerät den Text während dieses Alarms über seine Leitung ausgibt.</translation>
    </message>
    <message>
        <source>How long after the RTS signal the unit shows or sends the text of this alarm.</source>
        <translation>Wie lange nach dem RTS-Signal das Gerät den Text dieses Alarms anzeigt oder ausgibt.</translation>
    </message>
    <message>
        <source>The fixed text that the unit writes into the picture, such as the name of the shop.</source>
        <translation>Der feste Text, den das Gerät ins Bild schreibt, etwa der Name des Geschäfts.</translation>
    </message>
    <message>
        <source>Opens the window in which you type the title.</source>
        <translation>Öffnet das Fenster, in dem Sie den Titel eingeben.</translation>
    </message>
    <message>
        <source>After power up the unit simulates a register. You can then see text in the picture without a register.</source>
        <translation>Nach dem Einschalten simuliert das Gerät eine Kasse. So sehen Sie Text im Bild, auch ohne Kasse.</translation>
    </message>
    <message>
        <source>How many characters a line of the receipts has.</source>
        <translation>Wie viele Zeichen eine Zeile der Belege hat.</translation>
    </message>
    <message>
        <source>The kind of shop whose receipts the demo shows.</source>
        <translation>Die Art des Geschäfts, dessen Belege die Demo zeigt.</translation>
    </message>
    <message>
        <source>The time between two lines of the demo.</source>
        <translation>Die Zeit zwischen zwei Zeilen der Demo.</translation>
    </message>
    <message>
        <source>The text, 40 characters at most.</source>
        <translation>Der Text, höchstens 40 Zeichen.</translation>
    </message>
    <message>
        <source>Stores the text and closes this window.</source>
        <translation>Speichert den Text und schließt dieses Fenster.</translation>
    </message>
    <message>
        <source>Deletes the text in this window. Press SET to store the change.</source>
        <translation>Löscht den Text in diesem Fenster. Drücken Sie ÜBERNEHMEN, um die Änderung zu speichern.</translation>
    </message>
    <message>
        <source>The two digits of the first value after the separator.</source>
        <translation>Die beiden Ziffern des ersten Werts hinter dem Trennzeichen.</translation>
    </message>
    <message>
        <source>The two digits of the second value after the separator.</source>
        <translation>Die beiden Ziffern des zweiten Werts hinter dem Trennzeichen.</translation>
    </message>
    <message>
        <source>The separator that the register prints before the last two digits of an amount. It is for all exceptions. The program stores it at once.</source>
        <translation>Das Trennzeichen, das die Kasse vor den letzten beiden Ziffern eines Betrags druckt. Es gilt für alle Ausnahmen. Das Programm speichert es sofort.</translation>
    </message>
    <message>
        <source>Stores the two values and closes this window.</source>
        <translation>Speichert die beiden Werte und schließt dieses Fenster.</translation>
    </message>
    <message>
        <source>Sets both values to zero. Press SET to store them. The separator becomes &quot;.&quot; at once.</source>
        <translation>Setzt beide Werte auf 0. Drücken Sie ÜBERNEHMEN, um sie zu speichern. Das Trennzeichen wird sofort „.“.</translation>
    </message>
    <message>
        <source>The text of the file. You can mark and copy it.</source>
        <translation>Der Text der Datei. Er lässt sich markieren und kopieren.</translation>
    </message>
    <message>
        <source>How the unit is connected to the register: with its own RS-232 line, as a passive tap that only listens, or on an RS-485 bus.</source>
        <translation>Wie das Gerät mit der Kasse verbunden ist: über eine eigene RS-232-Leitung, als passiver Abgriff, der nur mithört, oder an einem RS-485-Bus.</translation>
    </message>
    <message>
        <source>The baud rate at which the unit receives from the register. With AUTO, the unit finds the baud rate itself.</source>
        <translation>Die Baudrate, mit der das Gerät von der Kasse empfängt. Bei AUTO findet das Gerät die Baudrate selbst.</translation>
    </message>
    <message>
        <source>The baud rate at which the unit sends.</source>
        <translation>Die Baudrate, mit der das Gerät sendet.</translation>
    </message>
    <message>
        <source>The parity of a character on the register line.</source>
        <translation>Die Parität eines Zeichens auf der Kassenleitung.</translation>
    </message>
    <message>
        <source>The data bits of a character on the register line.</source>
        <translation>Die Datenbits eines Zeichens auf der Kassenleitung.</translation>
    </message>
    <message>
        <source>Whether the unit uses the handshake signals of the register line.</source>
        <translation>Ob das Gerät die Handshake-Signale der Kassenleitung benutzt.</translation>
    </message>
    <message>
        <source>Whether the unit begins a new line at every carriage return. The stored value depends on the handshaking, not on your pick.</source>
        <translation>Ob das Gerät bei jedem Wagenrücklauf eine neue Zeile beginnt. Der gespeicherte Wert hängt vom Handshake ab, nicht von Ihrer Wahl.</translation>
    </message>
    <message>
        <source>The form in which the unit sends its text. You can choose only for a MASTER.</source>
        <translation>Das Format, in dem das Gerät seinen Text sendet. Nur bei MASTER wählbar.</translation>
    </message>
    <message>
        <source>Whether characters on the register line control the flow.</source>
        <translation>Ob Zeichen auf der Kassenleitung den Datenfluss steuern.</translation>
    </message>
    <message>
        <source>The role of the unit in the network. OFF: the unit is not in a network.</source>
        <translation>Die Rolle des Geräts im Netzwerk. AUS: Das Gerät ist in keinem Netzwerk.</translation>
    </message>
    <message>
        <source>The network address of this unit.</source>
        <translation>Die Netzwerkadresse dieses Geräts.</translation>
    </message>
    <message>
        <source>The protocol of the network. A pick also sets the baud rate of the network.</source>
        <translation>Das Protokoll des Netzwerks. Eine Auswahl legt auch die Baudrate des Netzwerks fest.</translation>
    </message>
    <message>
        <source>The baud rate of the network.</source>
        <translation>Die Baudrate des Netzwerks.</translation>
    </message>
    <message>
        <source>You can choose the TX PROTOCOL only for a MASTER.</source>
        <translation>Das Sendeprotokoll lässt sich nur bei MASTER wählen.</translation>
    </message>
    <message>
        <source>This role in the network has no address.</source>
        <translation>Diese Rolle im Netzwerk hat keine Adresse.</translation>
    </message>
    <message>
        <source>Without a network you cannot pick a protocol.</source>
        <translation>Ohne Netzwerk lässt sich kein Protokoll wählen.</translation>
    </message>
    <message>
        <source>After this number of minutes without text from the register, the unit clears the text. Any pick except 10 also resets DISPLAY FORMAT, LINE COMPRESS and SCROLL DELAY.</source>
        <translation>Nach so vielen Minuten ohne Text der Kasse löscht das Gerät den Text im Bild. Jede Auswahl außer 10 setzt auch TEXTPOSITION, LEERZEILEN WEGLASSEN und ROLLVERZÖGERUNG zurück.</translation>
    </message>
    <message>
        <source>How many lines the unit shows. The clock and the title need a line each.</source>
        <translation>Wie viele Zeilen das Gerät zeigt. Uhr und Titel brauchen je eine Zeile.</translation>
    </message>
    <message>
        <source>Whether the text is at the top or at the bottom of the picture.</source>
        <translation>Ob der Text oben oder unten im Bild steht.</translation>
    </message>
    <message>
        <source>Whether the unit compresses the lines: see the manual of the unit.</source>
        <translation>Ob das Gerät die Zeilen verdichtet: siehe das Handbuch des Geräts.</translation>
    </message>
    <message>
        <source>Whether the unit justifies the lines: see the manual of the unit.</source>
        <translation>Ob das Gerät die Zeilen ausrichtet: siehe das Handbuch des Geräts.</translation>
    </message>
    <message>
        <source>Whether the unit delays the scrolling text: see the manual of the unit.</source>
        <translation>Ob das Gerät den rollenden Text verzögert: siehe das Handbuch des Geräts.</translation>
    </message>
    <message>
        <source>Whether the unit shows the text of the register.</source>
        <translation>Ob das Gerät den Text der Kasse zeigt.</translation>
    </message>
    <message>
        <source>How the unit compresses blanks, with a number from 1 to 5: see the manual of the unit. With OFF it does not.</source>
        <translation>Wie das Gerät Leerzeichen verdichtet, mit einer Zahl von 1 bis 5: siehe das Handbuch des Geräts. Bei AUS verdichtet es nicht.</translation>
    </message>
    <message>
        <source>How many characters a line in the picture has.</source>
        <translation>Wie viele Zeichen eine Zeile im Bild hat.</translation>
    </message>
    <message>
        <source>Whether the unit shows its clock in one line of the picture.</source>
        <translation>Ob das Gerät seine Uhr in einer Zeile des Bildes zeigt.</translation>
    </message>
    <message>
        <source>Whether the unit shows the time with 12 or with 24 hours.</source>
        <translation>Ob das Gerät die Uhrzeit mit 12 oder mit 24 Stunden zeigt.</translation>
    </message>
    <message>
        <source>The order of day, month and year.</source>
        <translation>Die Reihenfolge von Tag, Monat und Jahr.</translation>
    </message>
    <message>
        <source>The country whose rule the unit uses to change to summer time and back.</source>
        <translation>Das Land, nach dessen Regel das Gerät auf Sommerzeit und zurück umstellt.</translation>
    </message>
    <message>
        <source>Whether the clock of the unit is locked.</source>
        <translation>Ob die Uhr des Geräts gesperrt ist.</translation>
    </message>
    <message>
        <source>Whether the unit shows the title in one line of the picture.</source>
        <translation>Ob das Gerät den Titel in einer Zeile des Bildes zeigt.</translation>
    </message>
    <message>
        <source>The language of the unit&apos;s own texts.</source>
        <translation>Die Sprache der eigenen Texte des Geräts.</translation>
    </message>
    <message>
        <source>Whether the unit reports exceptions on its serial line.</source>
        <translation>Ob das Gerät Ausnahmen über seine Leitung meldet.</translation>
    </message>
    <message>
        <source>Whether the unit puts the time at the beginning of a report.</source>
        <translation>Ob das Gerät einer Meldung die Uhrzeit voranstellt.</translation>
    </message>
    <message>
        <source>Whether the unit reports a line again if it is the same as the last one.</source>
        <translation>Ob das Gerät eine Zeile erneut meldet, wenn sie der vorigen gleicht.</translation>
    </message>
    <message>
        <source>A digit of the ID of the register that the unit listens to.</source>
        <translation>Eine Ziffer der ID der Kasse, die das Gerät mithört.</translation>
    </message>
    <message>
        <source>A digit of the address of the register that the unit listens to. A pick also sets the line settings.</source>
        <translation>Eine Ziffer der Adresse der Kasse, die das Gerät mithört. Eine Auswahl legt auch die Einstellungen der Kassenleitung fest.</translation>
    </message>
    <message>
        <source>One of the four numbers of the IP address from which the unit receives its text.</source>
        <translation>Eine der vier Zahlen der IP-Adresse, von der das Gerät seinen Text bezieht.</translation>
    </message>
    <message>
        <source>One of the four numbers of the IP address. With this firmware the program does not store a change.</source>
        <translation>Eine der vier Zahlen der IP-Adresse. Bei dieser Firmware speichert das Programm keine Änderung.</translation>
    </message>
    <message>
        <source>Opens further settings of the model, if it has any.</source>
        <translation>Öffnet weitere Einstellungen des Modells, falls es welche hat.</translation>
    </message>
    <message>
        <source>Opens the settings of the network that you picked.</source>
        <translation>Öffnet die Einstellungen des gewählten Netzwerks.</translation>
    </message>
    <message>
        <source>The address of the counter that the unit listens to.</source>
        <translation>Die Adresse des Zählers, den das Gerät mithört.</translation>
    </message>
    <message>
        <source>The address of the device whose text the unit reads. ANY means every device.</source>
        <translation>Die Adresse der Quelle, deren Text das Gerät liest. ALLE lässt jede zu.</translation>
    </message>
    <message>
        <source>The address of the register that the unit listens to. ANY means every register. A pick also sets the baud rate of the register line.</source>
        <translation>Die Adresse der Kasse, die das Gerät mithört. ALLE lässt jede Kasse zu. Eine Auswahl legt auch die Baudrate der Kassenleitung fest.</translation>
    </message>
    <message>
        <source>The address of the register that the unit listens to. ALL means every register.</source>
        <translation>Die Adresse der Kasse, die das Gerät mithört. ALLE lässt jede Kasse zu.</translation>
    </message>
    <message>
        <source>The address to which the register sends the text for the unit. ANY means every address.</source>
        <translation>Die Adresse, an die die Kasse den Text für das Gerät sendet. ALLE lässt jede Adresse zu.</translation>
    </message>
    <message>
        <source>The console whose text the unit reads. ANY means every console.</source>
        <translation>Die Konsole, deren Text das Gerät liest. ALLE lässt jede zu.</translation>
    </message>
    <message>
        <source>The device of the register whose text the unit reads.</source>
        <translation>Der Teil der Kasse, dessen Text das Gerät liest.</translation>
    </message>
    <message>
        <source>The device whose line the unit is connected to.</source>
        <translation>Die Quelle, mit deren Leitung das Gerät verbunden ist.</translation>
    </message>
    <message>
        <source>The device whose text the unit reads.</source>
        <translation>Die Quelle, deren Text das Gerät liest.</translation>
    </message>
    <message>
        <source>The kind of device that the unit listens to.</source>
        <translation>Die Art der Quelle, die das Gerät mithört.</translation>
    </message>
    <message>
        <source>The make of the pole display that the unit listens to.</source>
        <translation>Das Fabrikat der Kundenanzeige, die das Gerät mithört.</translation>
    </message>
    <message>
        <source>The network in which the unit listens to the register. All but the first have further settings.</source>
        <translation>Das Netzwerk, in dem das Gerät die Kasse mithört. Alle außer dem ersten haben weitere Einstellungen.</translation>
    </message>
    <message>
        <source>The output format of the weighbridge.</source>
        <translation>Das Ausgabeformat der Fahrzeugwaage.</translation>
    </message>
    <message>
        <source>The unit answers in place of this printer. A pick also sets the line settings.</source>
        <translation>Das Gerät antwortet anstelle dieses Druckers. Eine Auswahl legt auch die Einstellungen der Kassenleitung fest.</translation>
    </message>
    <message>
        <source>The printer of the 7059 whose text the unit reads.</source>
        <translation>Der Drucker des Modells 7059, dessen Text das Gerät liest.</translation>
    </message>
    <message>
        <source>The printer of the point of sale that the unit listens to. A pick also sets the line settings.</source>
        <translation>Der Drucker des Kassenplatzes, den das Gerät mithört. Eine Auswahl legt auch die Einstellungen der Kassenleitung fest.</translation>
    </message>
    <message>
        <source>The printer or terminal whose text the unit reads. A pick also sets the baud rate of the register line.</source>
        <translation>Der Drucker oder das Terminal, dessen Text das Gerät liest. Eine Auswahl legt auch die Baudrate der Kassenleitung fest.</translation>
    </message>
    <message>
        <source>The printer whose text the unit reads.</source>
        <translation>Der Drucker, dessen Text das Gerät liest.</translation>
    </message>
    <message>
        <source>The printer whose text the unit reads. The unit listens to it (TAPPING) or answers in its place (EMULATING).</source>
        <translation>Der Drucker, dessen Text das Gerät liest. Das Gerät hört ihn mit (MITHÖREN) oder antwortet an seiner Stelle (EMULIEREN).</translation>
    </message>
    <message>
        <source>The printer and the line to which the unit is connected.</source>
        <translation>Der Drucker und die Leitung, mit der das Gerät verbunden ist.</translation>
    </message>
    <message>
        <source>The register or printer whose text the unit reads. With TAP the unit listens. With EMULATE it answers as the printer.</source>
        <translation>Die Kasse oder der Drucker, dessen Text das Gerät liest. Bei MITHÖREN hört das Gerät mit. Bei EMULIEREN antwortet es als Drucker.</translation>
    </message>
    <message>
        <source>The register or printer whose text the unit reads. A few have a further list below.</source>
        <translation>Die Kasse oder der Drucker, dessen Text das Gerät liest. Zu einigen gibt es darunter eine weitere Liste.</translation>
    </message>
    <message>
        <source>The register system whose text the unit reads.</source>
        <translation>Das Kassensystem, dessen Text das Gerät liest.</translation>
    </message>
    <message>
        <source>The model or device whose text the unit reads.</source>
        <translation>Das Modell oder die Quelle, deren Text das Gerät liest.</translation>
    </message>
    <message>
        <source>The model of the register.</source>
        <translation>Das Modell der Kasse.</translation>
    </message>
    <message>
        <source>The model of the register. A few models have an ID.</source>
        <translation>Das Modell der Kasse. Einige Modelle haben eine ID.</translation>
    </message>
    <message>
        <source>The model of the register. A few models have further settings.</source>
        <translation>Das Modell der Kasse. Einige Modelle haben weitere Einstellungen.</translation>
    </message>
    <message>
        <source>The model of the register. The slip printer has further settings.</source>
        <translation>Das Modell der Kasse. Der Belegdrucker hat weitere Einstellungen.</translation>
    </message>
    <message>
        <source>The scale in which the unit shows the temperature.</source>
        <translation>Die Einheit, in der das Gerät die Temperatur zeigt.</translation>
    </message>
    <message>
        <source>The scale whose output the unit reads.</source>
        <translation>Die Waage, deren Ausgabe das Gerät liest.</translation>
    </message>
    <message>
        <source>The sensor whose readings the unit shows.</source>
        <translation>Der Sensor, dessen Messwerte das Gerät zeigt.</translation>
    </message>
    <message>
        <source>The software of the register. The form of its messages depends on it.</source>
        <translation>Die Software der Kasse. Von ihr hängt die Form der Meldungen ab.</translation>
    </message>
    <message>
        <source>The terminal whose text the unit reads. A pick also sets the line settings.</source>
        <translation>Das Terminal, dessen Text das Gerät liest. Eine Auswahl legt auch die Einstellungen der Kassenleitung fest.</translation>
    </message>
    <message>
        <source>The unit reads the security messages of the register. A pick also sets the line settings.</source>
        <translation>Das Gerät liest die Sicherheitsmeldungen der Kasse. Eine Auswahl legt auch die Einstellungen der Kassenleitung fest.</translation>
    </message>
    <message>
        <source>Whether the unit listens (TAP) or answers as the printer (EMULATE). A pick also sets the baud rate of the register line.</source>
        <translation>Ob das Gerät mithört (MITHÖREN) oder als Drucker antwortet (EMULIEREN). Eine Auswahl legt auch die Baudrate der Kassenleitung fest.</translation>
    </message>
    <message>
        <source>Whether the unit listens to the printer line (TAP) or answers as the printer (EMULATE).</source>
        <translation>Ob das Gerät die Druckerleitung mithört (MITHÖREN) oder als Drucker antwortet (EMULIEREN).</translation>
    </message>
    <message>
        <source>Whether the unit listens to the printer line (TAP) or answers as the printer (EMULATE). US is for registers of the United States.</source>
        <translation>Ob das Gerät die Druckerleitung mithört (MITHÖREN) oder als Drucker antwortet (EMULIEREN). US ist für Kassen aus den USA.</translation>
    </message>
    <message>
        <source>Whether the unit listens to the printer line or answers as the printer. A pick also sets the baud rate of the register line.</source>
        <translation>Ob das Gerät die Druckerleitung mithört oder als Drucker antwortet. Eine Auswahl legt auch die Baudrate der Kassenleitung fest.</translation>
    </message>
    <message>
        <source>Whether the unit only listens (TAP) or acknowledges what the register sends (ACK). A pick also sets the line settings.</source>
        <translation>Ob das Gerät nur mithört (MITHÖREN) oder bestätigt, was die Kasse sendet (ACK). Eine Auswahl legt auch die Einstellungen der Kassenleitung fest.</translation>
    </message>
    <message>
        <source>Whether the unit shows the title above the text of the register.</source>
        <translation>Ob das Gerät den Titel über dem Text der Kasse zeigt.</translation>
    </message>
    <message>
        <source>Whether the unit shows the title above the text of the register. A pick also sets TITLER.</source>
        <translation>Ob das Gerät den Titel über dem Text der Kasse zeigt. Eine Auswahl legt auch TITEL ANZEIGEN fest.</translation>
    </message>
    <message>
        <source>Whether the unit uses the descriptions in the XML messages of the register.</source>
        <translation>Ob das Gerät die Beschreibungen in den XML-Meldungen der Kasse benutzt.</translation>
    </message>
    <message>
        <source>Whether the unit uses the register ID below.</source>
        <translation>Ob das Gerät die Kassen-ID darunter benutzt.</translation>
    </message>
    <message>
        <source>Whether the unit writes this kind of information over the picture.</source>
        <translation>Ob das Gerät diese Art von Information ins Bild schreibt.</translation>
    </message>
    <message>
        <source>Which text of the register the unit shows.</source>
        <translation>Welchen Text der Kasse das Gerät zeigt.</translation>
    </message>
    <message>
        <source>Which text of the register the unit shows: the receipt or the journal.</source>
        <translation>Welchen Text der Kasse das Gerät zeigt: den Beleg oder das Journal.</translation>
    </message>
    <message>
        <source>Which printer of the 9500 the unit listens to. A pick also sets the baud rate, parity and data bits of the register line.</source>
        <translation>Welchen Drucker des Modells 9500 das Gerät mithört. Eine Auswahl legt auch Baudrate, Parität und Datenbits der Kassenleitung fest.</translation>
    </message>
    <message>
        <source>The printer of the register whose text the unit reads.</source>
        <translation>Der Drucker der Kasse, dessen Text das Gerät liest.</translation>
    </message>
    <message>
        <source>The printer of the terminal whose text the unit reads. MIXED means both printers.</source>
        <translation>Der Drucker des Terminals, dessen Text das Gerät liest. GEMISCHT bedeutet beide Drucker.</translation>
    </message>
    <message>
        <source>Which display the unit listens to. A pick also sets the baud rate, parity and data bits of the register line.</source>
        <translation>Welche Anzeige das Gerät mithört. Eine Auswahl legt auch Baudrate, Parität und Datenbits der Kassenleitung fest.</translation>
    </message>
</context>
<context>
    <name>TransferProgress</name>
    <message>
        <source>less than 1 s left</source>
        <translation>noch weniger als 1 s</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>noch %1 s</translation>
    </message>
    <message>
        <source>%1 min %2 s left</source>
        <translation>noch %1 min %2 s</translation>
    </message>
    <message>
        <source>waiting for the unit</source>
        <translation>wartet auf das Gerät</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language in which numbers are written</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>stopped after %1 characters</source>
        <translation>nach %1 Zeichen abgebrochen</translation>
    </message>
    <message>
        <source>%1 characters, %2</source>
        <translation>%1 Zeichen, %2</translation>
    </message>
</context>
<context>
    <name>UnsavedCopy</name>
    <message>
        <source>its lock file could not be created</source>
        <translation>die Sperrdatei lässt sich nicht anlegen</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>The program could not save your pick. %1</source>
        <translation>Das Programm konnte die Auswahl nicht speichern. %1</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The language changes at the next start.</source>
        <translation>Die neue Sprache gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Vie&amp;w</source>
        <translation>&amp;Ansicht</translation>
    </message>
</context>
</TS>
