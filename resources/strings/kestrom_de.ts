<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="KS_help">
        <source></source>
        <translation>Kestrom liest die On-Board-Diagnose (OBD-II) Ihres Autos über einen Adapter vom Typ ELM327.

Verbinden: Stecken Sie den Adapter in die Diagnosebuchse des Autos, meist unter dem Lenkrad, und schalten Sie die Zündung ein. Bei einem WLAN-Adapter verbinden Sie diesen Rechner zuerst mit dem Funknetz des Adapters, wählen dann in den Einstellungen WLAN und tragen Adresse und Port ein (meist 192.168.0.10 und 35000). Bei einem Bluetooth-Adapter wählen Sie Bluetooth; beim ersten Lesen oder Messen wählen Sie das Gerät. Bei einem Kabel wählen Sie den Anschluss. WLAN und Kabel sind schnell, Bluetooth ist langsamer, Bluetooth Low Energy am langsamsten; die Kurzhinweise der Wahlknöpfe sagen, was jedes braucht und was zu tun ist, wenn es nicht geht.

Fehlercodes: „Codes lesen“ zeigt die gespeicherten Codes mit ihrer Bedeutung, die Motorkontrollleuchte und die Prüfbereitschaft (Readiness). „Codes löschen“ löscht die Codes, schaltet die Leuchte aus und setzt die Prüfbereitschaft zurück; tun Sie das bei stehendem Motor und erst, wenn Sie die Codes notiert haben.

Prüfbereitschaft: OK ist eine abgeschlossene Prüfung, X eine noch nicht abgeschlossene (kein Fehler: sie läuft beim Fahren), N/A eine, die dieses Auto nicht hat. Prüft ein Diesel stattdessen etwas anderes, nennt der Name beides. Namen und Beschreibungen bleiben vorerst englisch.

Live-Daten: Wählen Sie die Art der Messung und drücken Sie auf Start. Jeder Messwert hat ein kleines Diagramm; ein Klick zeigt ihn groß und auf dem Rundinstrument, mit Strg wählen Sie einen weiteren für das zweite Instrument. Die Liste der Messwerte, die Einheiten und die Sprache stehen in den Einstellungen.

Aufzeichnungen: Ist „Messungen aufzeichnen“ in den Einstellungen gewählt, wird jede Messung in eine eigene Datei im Ordner „loggies“ geschrieben. Wo er liegt, zeigt der Hinweis zu Aufzeichnungen; Datei &gt; Aufzeichnung exportieren… exportiert sie als Tabelle.

Experte: Geben Sie einen beliebigen Adapterbefehl (AT I) oder eine Anfrage (01 0C) ein und lesen Sie die unveränderte Antwort.

Keine Antwort? Prüfen Sie Zündung, Stecker und Funkverbindung und schließen Sie andere Programme, die den Adapter benutzen.</translation>
    </message>
    <message id="no_reply_from_car_MSG">
        <source></source>
        <translation>Das Auto hat nicht geantwortet. Schalten Sie die Zündung ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="no_reply_from_car_MSG_BT">
        <source></source>
        <translation>Der Adapter funktioniert, aber das Auto hat nicht geantwortet.

Bitte prüfen Sie:
• Die Zündung ist eingeschaltet oder der Motor läuft.
• Der Adapter sitzt fest in der Diagnosebuchse.
• Der in der Bluetooth-Liste gewählte Adapter ist der in diesem Auto.
• Kein Telefon und kein anderes Programm benutzt den Adapter gleichzeitig.
• Das Auto unterstützt OBD-II.</translation>
    </message>
    <message id="no_reply_from_car_MSG_TCP">
        <source></source>
        <translation>Der Adapter funktioniert, aber das Auto hat nicht geantwortet.

Bitte prüfen Sie:
• Die Zündung ist eingeschaltet oder der Motor läuft.
• Der Adapter sitzt fest in der Diagnosebuchse.
• Dieser Rechner ist mit dem WLAN des Adapters in diesem Auto verbunden.
• Kein Telefon und kein anderes Programm benutzt den Adapter gleichzeitig.
• Das Auto unterstützt OBD-II.</translation>
    </message>
    <message id="no_reply_from_car_MSG_serial">
        <source></source>
        <translation>Der Adapter funktioniert, aber das Auto hat nicht geantwortet.

Bitte prüfen Sie:
• Die Zündung ist eingeschaltet oder der Motor läuft.
• Der Adapter sitzt fest in der Diagnosebuchse.
• Kein anderes Programm benutzt den Adapter gleichzeitig.
• Das Auto unterstützt OBD-II.</translation>
    </message>
    <message id="init_OBD_error_MSG">
        <source></source>
        <translation>Der Adapter konnte den Diagnosebus des Autos nicht starten. Schalten Sie die Zündung aus und wieder ein, prüfen Sie, dass der Adapter fest in der Diagnosebuchse sitzt, und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="blank_input_MSG">
        <source></source>
        <translation>Geben Sie zuerst einen Befehl ein, zum Beispiel AT I oder 01 0C.</translation>
    </message>
    <message id="FIELD_ENGINE_MPG">
        <source></source>
        <translation>Kraftstoffeffizienz</translation>
    </message>
    <message id="FIELD_ENGINE_BOOST">
        <source></source>
        <translation>Ladedruck</translation>
    </message>
    <message id="tcp_no_answer_yet_MSG">
        <source></source>
        <translation>Der Adapter hat noch nicht geantwortet. Prüfen Sie, ob dieser Rechner im Funknetz des Adapters ist und ob Adresse und Port stimmen.</translation>
    </message>
    <message id="serial_no_answer_yet_MSG">
        <source></source>
        <translation>Der Adapter hat noch nicht geantwortet. Prüfen Sie das Kabel und den Anschluss in den Einstellungen.</translation>
    </message>
    <message id="serial_not_chosen">
        <source></source>
        <translation>Es ist kein Anschluss gewählt. Stecken Sie den Adapter ein, und wählen Sie seinen Anschluss in den Einstellungen.</translation>
    </message>
    <message id="serial_not_there">
        <source></source>
        <translation>%1 ist nicht da. Stecken Sie den Adapter ein, oder wählen Sie in den Einstellungen einen anderen Anschluss.</translation>
    </message>
    <message id="serial_taken">
        <source></source>
        <translation>%1 ist verschwunden: Ein anderer Dienst hat sich das Kabel des Adapters genommen. Meist ist es brltty, für Braillezeilen. Wenn es niemand braucht, geben Sie in einem Terminal „sudo apt remove brltty“ ein und stecken den Adapter neu ein.</translation>
    </message>
    <message id="serial_not_permitted">
        <source></source>
        <translation>Sie dürfen %1 nicht benutzen: Der Anschluss gehört der Gruppe %2. Geben Sie in einem Terminal „sudo usermod -a -G %2 $USER“ ein, melden Sie sich ab und wieder an.</translation>
    </message>
    <message id="serial_busy">
        <source></source>
        <translation>Ein anderes Programm hat %1 geöffnet. Schließen Sie es und versuchen Sie es noch einmal. ModemManager gibt den Anschluss binnen einer halben Minute selbst frei.</translation>
    </message>
    <message id="serial_silent">
        <source></source>
        <translation>An %1 antwortet kein Adapter (versucht: %2 Baud). Prüfen Sie, ob es der Anschluss des Adapters ist, ob der Adapter in der Diagnosebuchse steckt, und die Geschwindigkeit in den Einstellungen.</translation>
    </message>
    <message id="serial_other">
        <source></source>
        <translation>%1 lässt sich nicht benutzen: %2</translation>
    </message>
    <message id="bt_no_adapter_MSG">
        <source></source>
        <translation>Es wurde kein Bluetooth-Adapter gewählt. Drücken Sie noch einmal, um einen zu wählen.</translation>
    </message>
    <message id="bt_not_reached_MSG">
        <source></source>
        <translation>Keine Bluetooth-Verbindung. Erneut drücken, um es noch einmal zu versuchen. Um einen anderen Adapter zu wählen, schalten Sie „Den letzten Adapter wieder verwenden“ in den Einstellungen aus.</translation>
    </message>
    <message id="bt_closed_MSG">
        <source></source>
        <translation>Die Bluetooth-Verbindung ist beendet. „Neu verbinden“ stellt sie wieder her.</translation>
    </message>
    <message id="ui_where_to_begin">
        <source></source>
        <translation>Richten Sie unter Einstellungen Ihren Adapter ein und lesen Sie dann unter Fehlercodes das Auto aus.</translation>
    </message>
    <message id="ui_start_wifi">
        <source></source>
        <translation>&amp;WLAN-Adapter</translation>
    </message>
    <message id="ui_start_bluetooth">
        <source></source>
        <translation>&amp;Bluetooth-Adapter</translation>
    </message>
    <message id="ui_start_serial">
        <source></source>
        <translation>USB- oder serielles &amp;Kabel</translation>
    </message>
    <message id="ui_start_demo">
        <source></source>
        <translation>Mit dem &amp;virtuellen Auto probieren</translation>
    </message>
    <message id="ui_rail_codes">
        <source></source>
        <translation>Fehler&amp;codes</translation>
    </message>
    <message id="ui_rail_live">
        <source></source>
        <translation>&amp;Live-Daten</translation>
    </message>
    <message id="ui_rail_logs">
        <source></source>
        <translation>Aufzeichn&amp;ungen</translation>
    </message>
    <message id="ui_rail_logs_hint">
        <source></source>
        <translation>Live-Daten schreibt Aufzeichnungen; Datei &gt; Aufzeichnung exportieren… exportiert sie als Tabelle</translation>
    </message>
    <message id="ui_rail_expert">
        <source></source>
        <translation>&amp;Experte</translation>
    </message>
    <message id="ui_rail_prefs">
        <source></source>
        <translation>E&amp;instellungen</translation>
    </message>
    <message id="ui_rail_help">
        <source></source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="ui_busy">
        <source></source>
        <translation>Beschäftigt</translation>
    </message>
    <message id="ui_status">
        <source></source>
        <translation>Status</translation>
    </message>
    <message id="ui_codes_title">
        <source></source>
        <translation>Fehlercodes</translation>
    </message>
    <message id="ui_read_codes">
        <source></source>
        <translation>Codes le&amp;sen</translation>
    </message>
    <message id="ui_read_codes_hint">
        <source></source>
        <translation>Kontrollleuchte, gespeicherte Codes und Prüfbereitschaft (Readiness) lesen</translation>
    </message>
    <message id="ui_clear_codes">
        <source></source>
        <translation>C&amp;odes löschen…</translation>
    </message>
    <message id="ui_clear_codes_hint">
        <source></source>
        <translation>Gespeicherte Codes löschen und die Kontrollleuchte ausschalten</translation>
    </message>
    <message id="ui_lamp">
        <source></source>
        <translation>Motorkontrollleuchte</translation>
    </message>
    <message id="ui_count">
        <source></source>
        <translation>Fehlercodes</translation>
    </message>
    <message id="ui_read_on">
        <source></source>
        <translation>Gelesen am</translation>
    </message>
    <message id="ui_adapter">
        <source></source>
        <translation>Adapter</translation>
    </message>
    <message id="ui_protocol">
        <source></source>
        <translation>Protokoll</translation>
    </message>
    <message id="ui_units">
        <source></source>
        <translation>Steuergeräte</translation>
    </message>
    <message id="ui_col_code">
        <source></source>
        <translation>Code</translation>
    </message>
    <message id="ui_col_description">
        <source></source>
        <translation>Beschreibung</translation>
    </message>
    <message id="ui_codes_table">
        <source></source>
        <translation>Gespeicherte Fehlercodes</translation>
    </message>
    <message id="ui_codes_table_hint">
        <source></source>
        <translation>Die Beschreibungen sind englisch, in den Begriffen der Norm SAE J2012</translation>
    </message>
    <message id="ui_codes_empty">
        <source></source>
        <translation>Nach „Codes lesen“ stehen hier die gespeicherten Fehlercodes.</translation>
    </message>
    <message id="ui_codes_none">
        <source></source>
        <translation>Das Auto meldet keine gespeicherten Fehlercodes.</translation>
    </message>
    <message id="ui_codes_unread">
        <source></source>
        <translation>Die Fehlercodes konnten nicht vollständig gelesen werden.</translation>
    </message>
    <message id="ui_col_state">
        <source></source>
        <translation>Stand</translation>
    </message>
    <message id="ui_col_monitor">
        <source></source>
        <translation>Prüfung</translation>
    </message>
    <message id="ui_col_kind">
        <source></source>
        <translation>Art</translation>
    </message>
    <message id="ui_readiness_table">
        <source></source>
        <translation>Prüfbereitschaft (Readiness)</translation>
    </message>
    <message id="ui_readiness_hint">
        <source></source>
        <translation>OK: Die Prüfung ist abgeschlossen
X: noch nicht abgeschlossen; das ist kein Fehler, die Prüfung läuft beim Fahren
N/A: Diese Prüfung gibt es in diesem Auto nicht
Die Namen der Prüfungen sind englisch.</translation>
    </message>
    <message id="ui_readiness_empty">
        <source></source>
        <translation>Nach „Codes lesen“ steht hier die Prüfbereitschaft (Readiness).</translation>
    </message>
    <message id="ui_live_title">
        <source></source>
        <translation>Live-Daten</translation>
    </message>
    <message id="ui_stall_hint">
        <source></source>
        <translation>wartet seit %1 s auf den Adapter</translation>
    </message>
    <message id="ui_reconnect">
        <source></source>
        <translation>&amp;Neu verbinden</translation>
    </message>
    <message id="ui_reconnect_hint">
        <source></source>
        <translation>Schließt die Verbindung zum Adapter und stellt sie neu her</translation>
    </message>
    <message id="ui_reconnected">
        <source></source>
        <translation>Wieder verbunden. Drücken Sie eine Schaltfläche, um fortzufahren.</translation>
    </message>
    <message id="ui_settings_not_saved">
        <source></source>
        <translation>Die Einstellungen konnten nicht gespeichert werden. Sie gelten, bis Kestrom beendet wird, und gehen dann verloren. Ist der Datenträger voll oder schreibgeschützt?</translation>
    </message>
    <message id="ui_live_run">
        <source></source>
        <translation>&amp;Messung:</translation>
    </message>
    <message id="ui_live_run_hint">
        <source></source>
        <translation>Art der Messung</translation>
    </message>
    <message id="ui_live_zoom">
        <source></source>
        <translation>&amp;Zoom:</translation>
    </message>
    <message id="ui_live_zoom_hint">
        <source></source>
        <translation>Wie viele der letzten Werte das große Diagramm zeigt</translation>
    </message>
    <message id="ui_live_start">
        <source></source>
        <translation>Messung starten (Strg+R)</translation>
    </message>
    <message id="ui_live_stop">
        <source></source>
        <translation>Messung beenden (Strg+R)</translation>
    </message>
    <message id="ui_live_next_sensors">
        <source></source>
        <translation>Nächste &amp;Sonden</translation>
    </message>
    <message id="ui_live_strip">
        <source></source>
        <translation>Messwerte</translation>
    </message>
    <message id="ui_live_strip_hint">
        <source></source>
        <translation>Klicken zeigt den Wert im großen Diagramm; mit Strg oder Umschalt mehrere</translation>
    </message>
    <message id="ui_live_chart">
        <source></source>
        <translation>Diagramm</translation>
    </message>
    <message id="ui_live_dial_1">
        <source></source>
        <translation>Erstes Rundinstrument</translation>
    </message>
    <message id="ui_live_dial_2">
        <source></source>
        <translation>Zweites Rundinstrument</translation>
    </message>
    <message id="ui_live_empty">
        <source></source>
        <translation>Es sind keine Messwerte gewählt. Wählen Sie in den Einstellungen, was eine Messung abfragt.</translation>
    </message>
    <message id="ui_live_press_start">
        <source></source>
        <translation>Der runde Knopf oben rechts startet die Messung.</translation>
    </message>
    <message id="ui_live_second_dial">
        <source></source>
        <translation>Strg+Klick auf einen zweiten Messwert oben zeigt hier sein Rundinstrument.</translation>
    </message>
    <message id="ui_fast">
        <source></source>
        <translation>Schnell</translation>
    </message>
    <message id="ui_fast_hint">
        <source></source>
        <translation>Fragt mehrere Werte auf einmal ab und wartet nicht länger als nötig, soweit Adapter und Auto zeigen, dass sie es können. Manche Autos vertragen das schlecht: Schalten Sie es aus, wenn Lampen angehen oder der Motor unrund läuft. Gilt ab dem nächsten Start.</translation>
    </message>
    <message id="ui_fast_no_use">
        <source></source>
        <translation>Dieses Auto antwortet nicht schneller, als es schon gefragt wird.</translation>
    </message>
    <message id="ui_fast_rate">
        <source></source>
        <translation>%1 Werte/s</translation>
    </message>
    <message id="ui_fast_rate_hint">
        <source></source>
        <translation>Werte in der Sekunde, und wie sie abgefragt werden</translation>
    </message>
    <message id="ui_fast_level_0">
        <source></source>
        <translation>einzeln</translation>
    </message>
    <message id="ui_fast_level_1">
        <source></source>
        <translation>ohne Warten</translation>
    </message>
    <message id="ui_fast_level_2">
        <source></source>
        <translation>mehrere zugleich</translation>
    </message>
    <message id="ui_fast_level_3">
        <source></source>
        <translation>mehrere, ohne Warten</translation>
    </message>
    <message id="ui_fast_level_down">
        <source></source>
        <translation>Antworten passten nicht: Die schnelle Abfrage geht vorsichtiger weiter</translation>
    </message>
    <message id="ui_fast_given_up">
        <source></source>
        <translation>Antworten passten nicht: Es geht mit einzelnen Werten weiter</translation>
    </message>
    <message id="ui_live_follow">
        <source></source>
        <translation>Dia&amp;gramm folgen</translation>
    </message>
    <message id="ui_live_follow_hint">
        <source></source>
        <translation>Das erste Rundinstrument zeigt dann den Messwert des großen Diagramms.</translation>
    </message>
    <message id="ui_live_dial_unmoved">
        <source></source>
        <translation>Nichts bewegt dieses Instrument: Wählen Sie den ersten Messwert oder „Diagramm folgen“.</translation>
    </message>
    <message id="ui_live_length">
        <source></source>
        <translation>Dauer der Messung</translation>
    </message>
    <message id="ui_live_reading">
        <source></source>
        <translation>%1: %2, Bereich %3 bis %4</translation>
    </message>
    <message id="ui_live_log_failed">
        <source></source>
        <translation>Aufzeichnung abgebrochen:</translation>
    </message>
    <message id="ui_live_no_sensors">
        <source></source>
        <translation>Das Auto meldet keine Lambdasonden</translation>
    </message>
    <message id="ui_expert_title">
        <source></source>
        <translation>Experte</translation>
    </message>
    <message id="ui_transcript">
        <source></source>
        <translation>Mitschrift</translation>
    </message>
    <message id="ui_transcript_empty">
        <source></source>
        <translation>Hier erscheinen die Befehle und die unveränderten Antworten des Adapters.</translation>
    </message>
    <message id="ui_command">
        <source></source>
        <translation>Befehl</translation>
    </message>
    <message id="ui_command_label">
        <source></source>
        <translation>&amp;Befehl:</translation>
    </message>
    <message id="ui_command_hint">
        <source></source>
        <translation>AT I, 01 0C, 03 …</translation>
    </message>
    <message id="ui_command_too_long">
        <source></source>
        <translation>Ein Befehl darf höchstens 38 Zeichen haben. Es wurde nichts gesendet.</translation>
    </message>
    <message id="ui_send">
        <source></source>
        <translation>&amp;Senden</translation>
    </message>
    <message id="ui_prefs_title">
        <source></source>
        <translation>Einstellungen</translation>
    </message>
    <message id="ui_adapter_group">
        <source></source>
        <translation>Adapter</translation>
    </message>
    <message id="ui_bluetooth">
        <source></source>
        <translation>&amp;Bluetooth</translation>
    </message>
    <message id="ui_wifi">
        <source></source>
        <translation>&amp;WLAN</translation>
    </message>
    <message id="ui_serial">
        <source></source>
        <translation>USB- oder serielles &amp;Kabel</translation>
    </message>
    <message id="ui_serial_speed">
        <source></source>
        <translation>Tempo:</translation>
    </message>
    <message id="ui_serial_auto">
        <source></source>
        <translation>durch Probieren</translation>
    </message>
    <message id="ui_serial_absent">
        <source></source>
        <translation>%1 (nicht eingesteckt)</translation>
    </message>
    <message id="ui_serial_none">
        <source></source>
        <translation>keiner eingesteckt</translation>
    </message>
    <message id="ui_kind_bluetooth">
        <source></source>
        <translation>Braucht nur den Adapter; koppeln Sie ihn hier oder in den Einstellungen des Desktops. Tempo: mittel, mit Low Energy geringer. Wenn es nicht geht: aus- und einstecken, und kein Telefon darf ihn haben.</translation>
    </message>
    <message id="ui_kind_wifi">
        <source></source>
        <translation>Braucht diesen Rechner im eigenen Funknetz des Adapters, oft ohne Internet. Tempo: gut. Wenn es nicht geht: dem Netz neu beitreten, Adresse und Port prüfen.</translation>
    </message>
    <message id="ui_kind_serial">
        <source></source>
        <translation>Braucht einen freien Anschluss und das Recht daran. Tempo: gut, höchstens das des Kabels. Wenn es nicht geht: Kabel neu einstecken; die Meldung sagt, wer den Anschluss hat oder welche Gruppe ihn benutzen darf.</translation>
    </message>
    <message id="ui_address">
        <source></source>
        <translation>&amp;Adresse:</translation>
    </message>
    <message id="ui_port">
        <source></source>
        <translation>Por&amp;t:</translation>
    </message>
    <message id="ui_last_bt">
        <source></source>
        <translation>Den let&amp;zten Adapter wieder verwenden</translation>
    </message>
    <message id="ui_last_bt_hint">
        <source></source>
        <translation>Ohne Rückfrage mit dem zuletzt gewählten Adapter verbinden</translation>
    </message>
    <message id="ui_units_group">
        <source></source>
        <translation>Einheiten und Aufzeichnung</translation>
    </message>
    <message id="ui_metric">
        <source></source>
        <translation>&amp;Metrische Einheiten</translation>
    </message>
    <message id="ui_metric_hint">
        <source></source>
        <translation>km/h, °C und kPa statt mph, °F und psi</translation>
    </message>
    <message id="ui_log_runs">
        <source></source>
        <translation>Messun&amp;gen aufzeichnen</translation>
    </message>
    <message id="ui_log_runs_hint">
        <source></source>
        <translation>Jede Messung unter Live-Daten in eine Datei schreiben</translation>
    </message>
    <message id="ui_language">
        <source></source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message id="ui_language_desktop">
        <source></source>
        <translation>Sprache des Desktops</translation>
    </message>
    <message id="ui_language_hint">
        <source></source>
        <translation>Wirkt ab dem nächsten Start. Die Beschreibungen der Codes und die Namen der Prüfungen und Messwerte bleiben englisch.</translation>
    </message>
    <message id="ui_pids_group">
        <source></source>
        <translation>Messwerte für Live-Daten</translation>
    </message>
    <message id="ui_pids_table">
        <source></source>
        <translation>Messwerte</translation>
    </message>
    <message id="ui_col_show">
        <source></source>
        <translation>Zeigen</translation>
    </message>
    <message id="ui_col_parameter">
        <source></source>
        <translation>Messwert</translation>
    </message>
    <message id="ui_prefs_saved_on_leaving">
        <source></source>
        <translation>Änderungen werden gespeichert, wenn Sie diesen Bildschirm verlassen.</translation>
    </message>
    <message id="ui_defaults">
        <source></source>
        <translation>Standardwe&amp;rte</translation>
    </message>
    <message id="ui_menu_file">
        <source></source>
        <translation>&amp;Datei</translation>
    </message>
    <message id="ui_menu_export">
        <source></source>
        <translation>Aufzeichnung &amp;exportieren…</translation>
    </message>
    <message id="ui_menu_quit">
        <source></source>
        <translation>&amp;Beenden</translation>
    </message>
    <message id="ui_export_title">
        <source></source>
        <translation>Aufzeichnung exportieren</translation>
    </message>
    <message id="ui_export_logs">
        <source></source>
        <translation>Auf&amp;zeichnungen, neueste zuerst:</translation>
    </message>
    <message id="ui_export_none">
        <source></source>
        <translation>Es gibt noch keine Aufzeichnungen. Live-Daten schreibt zu jeder Messung eine, wenn in den Einstellungen „Messungen aufzeichnen“ gewählt ist.</translation>
    </message>
    <message id="ui_export_log">
        <source></source>
        <translation>Aufzeichnung</translation>
    </message>
    <message id="ui_export_size">
        <source></source>
        <translation>Größe</translation>
    </message>
    <message id="ui_export_written">
        <source></source>
        <translation>Geschrieben</translation>
    </message>
    <message id="ui_export_csv">
        <source></source>
        <translation>Tabelle für eine &amp;Tabellenkalkulation (.csv)</translation>
    </message>
    <message id="ui_export_txt">
        <source></source>
        <translation>Te&amp;xt (.txt)</translation>
    </message>
    <message id="ui_export_time">
        <source></source>
        <translation>Zeit jeder Ru&amp;nde zuerst, in Sekunden</translation>
    </message>
    <message id="ui_export_start">
        <source></source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message id="ui_export_open_folder">
        <source></source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message id="ui_export_close">
        <source></source>
        <translation>&amp;Schließen</translation>
    </message>
    <message id="ui_export_progress">
        <source></source>
        <translation>Fortschritt des Exports</translation>
    </message>
    <message id="ui_export_done">
        <source></source>
        <translation>%1 Zeilen exportiert nach %2</translation>
    </message>
    <message id="bt_chooser_title">
        <source></source>
        <translation>Bluetooth-Adapter wählen</translation>
    </message>
    <message id="bt_chooser_sentence">
        <source></source>
        <translation>Stecken Sie den Adapter in die Diagnosebuchse des Autos, schalten Sie die Zündung ein und wählen Sie ihn in der Liste.</translation>
    </message>
    <message id="bt_devices">
        <source></source>
        <translation>Bluetooth-Geräte</translation>
    </message>
    <message id="bt_col_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="bt_col_address">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="bt_col_paired">
        <source></source>
        <translation>Gekoppelt</translation>
    </message>
    <message id="bt_col_signal">
        <source></source>
        <translation>Signal</translation>
    </message>
    <message id="bt_col_serial">
        <source></source>
        <translation>Serielle Schnittstelle</translation>
    </message>
    <message id="bt_col_kind">
        <source></source>
        <translation>Art</translation>
    </message>
    <message id="bt_classic">
        <source></source>
        <translation>Klassisch</translation>
    </message>
    <message id="bt_low_energy">
        <source></source>
        <translation>Low Energy</translation>
    </message>
    <message id="bt_both_kinds">
        <source></source>
        <translation>beide</translation>
    </message>
    <message id="bt_yes">
        <source></source>
        <translation>ja</translation>
    </message>
    <message id="bt_no">
        <source></source>
        <translation>nein</translation>
    </message>
    <message id="bt_when_connecting">
        <source></source>
        <translation>noch nicht bekannt</translation>
    </message>
    <message id="bt_searching">
        <source></source>
        <translation>Suche nach Bluetooth-Geräten …</translation>
    </message>
    <message id="bt_search_over">
        <source></source>
        <translation>Die Suche ist beendet. Fehlt der Adapter? Ziehen Sie ihn ab, stecken Sie ihn wieder ein, schalten Sie die Zündung ein und suchen Sie noch einmal.</translation>
    </message>
    <message id="bt_none_found">
        <source></source>
        <translation>Es wurde kein Bluetooth-Gerät gefunden.

Steckt der Adapter, und ist die Zündung an? Ist er mit einem Telefon verbunden? Suchen Sie danach noch einmal.</translation>
    </message>
    <message id="bt_connecting">
        <source></source>
        <translation>Verbinde mit %1 … Falls der Desktop eine PIN verlangt: Die meisten Adapter haben 1234 oder 0000.</translation>
    </message>
    <message id="bt_search_again">
        <source></source>
        <translation>Noch einmal &amp;suchen</translation>
    </message>
    <message id="bt_cancel">
        <source></source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="bt_connect">
        <source></source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message id="bt_service_missing">
        <source></source>
        <translation>Auf diesem Rechner läuft der Bluetooth-Dienst nicht.

Installieren Sie das Paket bluez, falls es fehlt, und starten Sie den Dienst:
sudo systemctl enable --now bluetooth</translation>
    </message>
    <message id="bt_no_adapter">
        <source></source>
        <translation>Dieser Rechner hat keinen funktionierenden Bluetooth-Adapter.

Stecken Sie einen Bluetooth-Stick ein, oder benutzen Sie einen Diagnoseadapter mit WLAN oder Kabel.</translation>
    </message>
    <message id="bt_switched_off">
        <source></source>
        <translation>Bluetooth ist ausgeschaltet.

Schalten Sie es in den Einstellungen des Desktops ein, oder mit:
bluetoothctl power on</translation>
    </message>
    <message id="bt_not_permitted">
        <source></source>
        <translation>Sie dürfen Bluetooth auf diesem Rechner nicht benutzen.

Melden Sie sich am Rechner selbst an, oder bitten Sie den Administrator, Sie in die Gruppe bluetooth aufzunehmen.</translation>
    </message>
    <message id="bt_in_use">
        <source></source>
        <translation>%1 wird von einem anderen Programm auf diesem Rechner benutzt. Schließen Sie es, und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="bt_out_of_reach">
        <source></source>
        <translation>%1 antwortet nicht. Steckt der Adapter, ist die Zündung an, und steht das Auto in der Nähe?</translation>
    </message>
    <message id="bt_no_serial_port">
        <source></source>
        <translation>%1 bietet keine serielle Schnittstelle an und ist deshalb kein Adapter, mit dem Kestrom sprechen kann. Wählen Sie ein anderes Gerät.</translation>
    </message>
    <message id="bt_refused">
        <source></source>
        <translation>%1 hat die Verbindung abgelehnt. Benutzt ein Telefon oder ein anderer Rechner den Adapter? Ziehen Sie ihn ab, stecken Sie ihn wieder ein, und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="bt_pairing_failed">
        <source></source>
        <translation>Das Koppeln mit %1 ist gescheitert. Versuchen Sie es noch einmal, und bestätigen Sie die Rückfrage des Desktops; die meisten Adapter haben die PIN 1234 oder 0000.</translation>
    </message>
    <message id="bt_other_problem">
        <source></source>
        <translation>Die Verbindung mit %1 ist gescheitert. Ziehen Sie den Adapter ab, stecken Sie ihn wieder ein, und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="bt_no_chooser">
        <source></source>
        <translation>Es ist kein Bluetooth-Adapter gewählt. Nennen Sie einen mit --bluetooth ADRESSE (kestrom bluetooth-scan zeigt, welche in Reichweite sind) einen WLAN-Adapter mit --adapter RECHNER:PORT oder ein Kabel mit --adapter /dev/ttyUSB0; --demo braucht keinen.</translation>
    </message>
    <message id="ui_menu_about">
        <source></source>
        <translation>Über &amp;Kestrom</translation>
    </message>
    <message id="ui_about">
        <source></source>
        <translation>Liest die Fahrzeugdiagnose (OBD-II) über einen Adapter vom Typ ELM327: Fehlercodes, Prüfbereitschaft, Live-Daten, Aufzeichnungen und eine Konsole.

Freie Software unter der MIT-Lizenz.
© 2026 The Kestrom developers</translation>
    </message>
    <message id="ui_about_close">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="ui_run_log">
        <source></source>
        <translation>Messwerte</translation>
    </message>
    <message id="ui_run_fuel">
        <source></source>
        <translation>Kraftstoffverbrauch</translation>
    </message>
    <message id="ui_run_sensors">
        <source></source>
        <translation>Lambdasonden</translation>
    </message>
    <message id="ui_run_boost">
        <source></source>
        <translation>Ladedruck</translation>
    </message>
    <message id="ui_unread">
        <source></source>
        <translation>Nicht alles, was das Auto gesendet hat, konnte gelesen werden: %1. Möglicherweise fehlen Fehlercodes: Lesen Sie noch einmal.</translation>
    </message>
    <message id="unread_adapter_notice">
        <source></source>
        <translation>der Adapter hat %1 gemeldet</translation>
    </message>
    <message id="unread_damaged_line">
        <source></source>
        <translation>eine beschädigte Zeile</translation>
    </message>
    <message id="unread_not_understood">
        <source></source>
        <translation>eine Zeile, die keine Antwort ist</translation>
    </message>
    <message id="unread_broken_off">
        <source></source>
        <translation>eine abgebrochene Antwort</translation>
    </message>
    <message id="unread_too_long">
        <source></source>
        <translation>eine Antwort, auf die fremde Daten folgen</translation>
    </message>
    <message id="unread_frames_unclear">
        <source></source>
        <translation>Datenrahmen, die nicht zusammenpassen</translation>
    </message>
    <message id="unread_refused">
        <source></source>
        <translation>ein Steuergerät hat die Anfrage abgelehnt (%1)</translation>
    </message>
    <message id="unread_no_answer">
        <source></source>
        <translation>das Auto hat nicht geantwortet</translation>
    </message>
    <message id="unread_silent_unit">
        <source></source>
        <translation>ein Steuergerät hat nicht geantwortet (%1)</translation>
    </message>
    <message id="unread_left_out">
        <source></source>
        <translation>das Auto hat auch %1 gesendet (nicht in der Liste)</translation>
    </message>
    <message id="ui_more_button">
        <source></source>
        <translation>Weitere …</translation>
    </message>
    <message id="ui_more_hint">
        <source></source>
        <translation>Wählen, was zusätzlich zu den Messwerten der Einstellungen abgefragt wird</translation>
    </message>
    <message id="ui_more_title">
        <source></source>
        <translation>Weitere Messwerte</translation>
    </message>
    <message id="ui_more_search">
        <source></source>
        <translation>Nach Name oder PID suchen</translation>
    </message>
    <message id="ui_more_name">
        <source></source>
        <translation>Messwert</translation>
    </message>
    <message id="ui_more_unit">
        <source></source>
        <translation>Einheit</translation>
    </message>
    <message id="ui_more_support">
        <source></source>
        <translation>Dieses Auto</translation>
    </message>
    <message id="ui_more_yes">
        <source></source>
        <translation>vorhanden</translation>
    </message>
    <message id="ui_more_no">
        <source></source>
        <translation>nicht vorhanden</translation>
    </message>
    <message id="ui_more_in_prefs">
        <source></source>
        <translation>In den Einstellungen gewählt</translation>
    </message>
    <message id="ui_more_ask">
        <source></source>
        <translation>Auto &amp;fragen</translation>
    </message>
    <message id="ui_more_use">
        <source></source>
        <translation>Über&amp;nehmen</translation>
    </message>
    <message id="ui_more_cancel">
        <source></source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="ui_more_unknown">
        <source></source>
        <translation>Noch ist nicht bekannt, welche Messwerte dieses Auto liefert.</translation>
    </message>
    <message id="ui_more_asking">
        <source></source>
        <translation>Das Auto wird nach seinen Messwerten gefragt</translation>
    </message>
    <message id="ui_more_told">
        <source></source>
        <translation>Das Auto hat gemeldet, welche Messwerte es liefert</translation>
    </message>
    <message id="ui_more_untold">
        <source></source>
        <translation>Das Auto hat nicht gemeldet, welche Messwerte es liefert</translation>
    </message>
    <message id="ui_more_known">
        <source></source>
        <translation>Dieses Auto liefert %d Messwerte.</translation>
    </message>
    <message id="ui_menu_lookup">
        <source></source>
        <translation>Code &amp;nachschlagen …</translation>
    </message>
    <message id="ui_lookup_title">
        <source></source>
        <translation>Code nachschlagen</translation>
    </message>
    <message id="ui_lookup_search">
        <source></source>
        <translation>Code oder Wörter der (englischen) Beschreibung</translation>
    </message>
    <message id="ui_lookup_none">
        <source></source>
        <translation>Nichts gefunden</translation>
    </message>
    <message id="ui_lookup_found">
        <source></source>
        <translation>Gefunden: %d</translation>
    </message>
    <message id="ui_lookup_close">
        <source></source>
        <translation>&amp;Schließen</translation>
    </message>
    <message id="report_title">
        <source></source>
        <translation>Fahrzeugbericht</translation>
    </message>
    <message id="report_compare_title">
        <source></source>
        <translation>Vergleich zweier Berichte</translation>
    </message>
    <message id="report_plate">
        <source></source>
        <translation>Kennzeichen</translation>
    </message>
    <message id="report_owner">
        <source></source>
        <translation>Halter</translation>
    </message>
    <message id="report_odometer">
        <source></source>
        <translation>Kilometerstand, abgelesen</translation>
    </message>
    <message id="report_signature">
        <source></source>
        <translation>Datum, Unterschrift</translation>
    </message>
    <message id="report_page">
        <source></source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message id="report_foot">
        <source></source>
        <translation>Über genormtes OBD gelesen: nur Motor und Abgas; keine Airbags, Bremsen oder Karosserie.</translation>
    </message>
    <message id="report_fact_lamp">
        <source></source>
        <translation>Motorkontrollleuchte (MIL)</translation>
    </message>
    <message id="report_fact_codes">
        <source></source>
        <translation>Fehlercodes</translation>
    </message>
    <message id="report_fact_readiness">
        <source></source>
        <translation>Prüfbereitschaft</translation>
    </message>
    <message id="report_on">
        <source></source>
        <translation>AN</translation>
    </message>
    <message id="report_off">
        <source></source>
        <translation>aus</translation>
    </message>
    <message id="report_counts">
        <source></source>
        <translation>Gespeichert: %1; vorläufig: %2; permanent: %3</translation>
    </message>
    <message id="report_at_least">
        <source></source>
        <translation>mindestens %1</translation>
    </message>
    <message id="report_ready">
        <source></source>
        <translation>%1 von %2 abgeschlossen</translation>
    </message>
    <message id="report_not_told">
        <source></source>
        <translation>nicht mitgeteilt</translation>
    </message>
    <message id="report_refused">
        <source></source>
        <translation>verweigert (%1)</translation>
    </message>
    <message id="report_unread">
        <source></source>
        <translation>nicht lesbar</translation>
    </message>
    <message id="report_not_asked">
        <source></source>
        <translation>nicht gefragt</translation>
    </message>
    <message id="report_none">
        <source></source>
        <translation>keine</translation>
    </message>
    <message id="report_section_vehicle">
        <source></source>
        <translation>Fahrzeug</translation>
    </message>
    <message id="report_section_readings">
        <source></source>
        <translation>Beim Lesen</translation>
    </message>
    <message id="report_section_adapter">
        <source></source>
        <translation>Adapter und Bus</translation>
    </message>
    <message id="report_section_units">
        <source></source>
        <translation>Steuergeräte</translation>
    </message>
    <message id="report_section_codes">
        <source></source>
        <translation>Fehlercodes</translation>
    </message>
    <message id="report_section_frames">
        <source></source>
        <translation>Umgebungsdaten (Freeze Frame)</translation>
    </message>
    <message id="report_section_readiness">
        <source></source>
        <translation>Prüfbereitschaft</translation>
    </message>
    <message id="report_section_cleared">
        <source></source>
        <translation>Seit dem Löschen der Codes</translation>
    </message>
    <message id="report_section_tests">
        <source></source>
        <translation>Testergebnisse</translation>
    </message>
    <message id="report_section_counters">
        <source></source>
        <translation>Zähler im Fahrbetrieb</translation>
    </message>
    <message id="report_section_unread">
        <source></source>
        <translation>Was nicht gelesen wurde, und warum</translation>
    </message>
    <message id="report_section_changes">
        <source></source>
        <translation>Was kam und ging</translation>
    </message>
    <message id="report_vin">
        <source></source>
        <translation>Fahrgestellnummer (VIN)</translation>
    </message>
    <message id="report_vin_odd">
        <source></source>
        <translation>%1 (keine Nummer nach Norm: %2)</translation>
    </message>
    <message id="report_vins_differ">
        <source></source>
        <translation>Die Steuergeräte nennen verschiedene Nummern: %1</translation>
    </message>
    <message id="report_read_at">
        <source></source>
        <translation>Gelesen am</translation>
    </message>
    <message id="report_seconds">
        <source></source>
        <translation>Dauer</translation>
    </message>
    <message id="report_volts">
        <source></source>
        <translation>Batterie, laut Adapter</translation>
    </message>
    <message id="report_engine_running">
        <source></source>
        <translation>Motor läuft</translation>
    </message>
    <message id="report_yes">
        <source></source>
        <translation>ja</translation>
    </message>
    <message id="report_no">
        <source></source>
        <translation>nein</translation>
    </message>
    <message id="report_adapter">
        <source></source>
        <translation>Adapter</translation>
    </message>
    <message id="report_protocol">
        <source></source>
        <translation>Protokoll</translation>
    </message>
    <message id="report_answered">
        <source></source>
        <translation>Antwortende Steuergeräte</translation>
    </message>
    <message id="report_col_unit">
        <source></source>
        <translation>Steuergerät</translation>
    </message>
    <message id="report_col_address">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="report_col_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="report_col_calibration">
        <source></source>
        <translation>Kalibrierung</translation>
    </message>
    <message id="report_col_verification">
        <source></source>
        <translation>Prüfnummer (CVN)</translation>
    </message>
    <message id="report_col_code">
        <source></source>
        <translation>Code</translation>
    </message>
    <message id="report_col_meaning">
        <source></source>
        <translation>Bedeutung</translation>
    </message>
    <message id="report_col_stored">
        <source></source>
        <translation>Gespeichert</translation>
    </message>
    <message id="report_col_pending">
        <source></source>
        <translation>Vorläufig</translation>
    </message>
    <message id="report_col_permanent">
        <source></source>
        <translation>Permanent</translation>
    </message>
    <message id="report_col_frame">
        <source></source>
        <translation>Frame</translation>
    </message>
    <message id="report_col_value">
        <source></source>
        <translation>Wert</translation>
    </message>
    <message id="report_col_monitor">
        <source></source>
        <translation>Prüfung</translation>
    </message>
    <message id="report_col_state">
        <source></source>
        <translation>Stand</translation>
    </message>
    <message id="report_col_drive">
        <source></source>
        <translation>Diese Fahrt</translation>
    </message>
    <message id="report_col_test">
        <source></source>
        <translation>Test</translation>
    </message>
    <message id="report_col_lowest">
        <source></source>
        <translation>Min.</translation>
    </message>
    <message id="report_col_highest">
        <source></source>
        <translation>Max.</translation>
    </message>
    <message id="report_col_result">
        <source></source>
        <translation>Ergebnis</translation>
    </message>
    <message id="report_col_near">
        <source></source>
        <translation>Weg zum Grenzwert</translation>
    </message>
    <message id="report_col_done">
        <source></source>
        <translation>Ausgeführt</translation>
    </message>
    <message id="report_col_conditions">
        <source></source>
        <translation>Bedingungen erfüllt</translation>
    </message>
    <message id="report_col_ratio">
        <source></source>
        <translation>Verhältnis</translation>
    </message>
    <message id="report_col_what">
        <source></source>
        <translation>Was</translation>
    </message>
    <message id="report_col_why">
        <source></source>
        <translation>Warum</translation>
    </message>
    <message id="report_col_before">
        <source></source>
        <translation>Vorher</translation>
    </message>
    <message id="report_col_after">
        <source></source>
        <translation>Nachher</translation>
    </message>
    <message id="report_complete">
        <source></source>
        <translation>abgeschlossen</translation>
    </message>
    <message id="report_not_complete">
        <source></source>
        <translation>nicht abgeschlossen</translation>
    </message>
    <message id="report_not_supported">
        <source></source>
        <translation>Nicht vorhanden: %1</translation>
    </message>
    <message id="report_spark">
        <source></source>
        <translation>Prüfungen für Otto-Motoren</translation>
    </message>
    <message id="report_compression">
        <source></source>
        <translation>Prüfungen für Dieselmotoren</translation>
    </message>
    <message id="report_failed">
        <source></source>
        <translation>NICHT BESTANDEN</translation>
    </message>
    <message id="report_passed">
        <source></source>
        <translation>bestanden</translation>
    </message>
    <message id="report_no_result">
        <source></source>
        <translation>noch kein Ergebnis</translation>
    </message>
    <message id="report_legend">
        <source></source>
        <translation>Vorläufig: auf dieser oder der letzten Fahrt aufgetreten. Gespeichert: bestätigt. Permanent: bleibt nach dem Löschen, bis die Prüfung bestanden ist.</translation>
    </message>
    <message id="report_mismatch">
        <source></source>
        <translation>%1: Der Status zählt %2 gespeicherte Codes, die Liste enthält %3.</translation>
    </message>
    <message id="report_cylinders">
        <source></source>
        <translation>Zylinder sind so nummeriert, wie das Steuergerät sie zählt.</translation>
    </message>
    <message id="report_no_o2_tests">
        <source></source>
        <translation>Vor CAN werden die Lambdasonden-Tests von Dienst 05 nicht gelesen.</translation>
    </message>
    <message id="report_unknown_code">
        <source></source>
        <translation>nicht in der Codeliste</translation>
    </message>
    <message id="report_why_not_listed">
        <source></source>
        <translation>dieses Steuergerät bietet es nicht an</translation>
    </message>
    <message id="report_why_listed">
        <source></source>
        <translation>keine Antwort, obwohl das Steuergerät es anbietet</translation>
    </message>
    <message id="report_why_no_answer">
        <source></source>
        <translation>keine Antwort</translation>
    </message>
    <message id="report_why_time_out">
        <source></source>
        <translation>keine Antwort innerhalb der Frist</translation>
    </message>
    <message id="report_why_incomplete">
        <source></source>
        <translation>Teile der Antwort fehlen</translation>
    </message>
    <message id="report_why_ended">
        <source></source>
        <translation>das Lesen war zu Ende</translation>
    </message>
    <message id="report_partly">
        <source></source>
        <translation>ein Teil davon war nicht lesbar</translation>
    </message>
    <message id="report_request">
        <source></source>
        <translation>Anfrage %1</translation>
    </message>
    <message id="report_end_cancelled">
        <source></source>
        <translation>Das Lesen wurde abgebrochen: Gezeigt wird, was bis dahin gelesen war.</translation>
    </message>
    <message id="report_end_time_up">
        <source></source>
        <translation>Das Lesen dauerte zu lange und wurde beendet: Gezeigt wird, was bis dahin gelesen war.</translation>
    </message>
    <message id="report_end_adapter_silent">
        <source></source>
        <translation>Der Adapter verstummte: Gezeigt wird, was bis dahin gelesen war.</translation>
    </message>
    <message id="report_end_link_lost">
        <source></source>
        <translation>Die Verbindung brach ab: Gezeigt wird, was bis dahin gelesen war.</translation>
    </message>
    <message id="report_part_status">
        <source></source>
        <translation>Leuchte und Prüfbereitschaft</translation>
    </message>
    <message id="report_part_this_drive">
        <source></source>
        <translation>Prüfbereitschaft dieser Fahrt</translation>
    </message>
    <message id="report_part_stored">
        <source></source>
        <translation>Gespeicherte Codes</translation>
    </message>
    <message id="report_part_pending">
        <source></source>
        <translation>Vorläufige Codes</translation>
    </message>
    <message id="report_part_permanent">
        <source></source>
        <translation>Permanente Codes</translation>
    </message>
    <message id="report_part_frame">
        <source></source>
        <translation>Umgebungsdaten</translation>
    </message>
    <message id="report_part_vin">
        <source></source>
        <translation>VIN</translation>
    </message>
    <message id="report_part_unit_name">
        <source></source>
        <translation>Name des Steuergeräts</translation>
    </message>
    <message id="report_part_calibrations">
        <source></source>
        <translation>Kalibrierungen</translation>
    </message>
    <message id="report_part_verification_numbers">
        <source></source>
        <translation>Prüfnummern</translation>
    </message>
    <message id="report_part_counters">
        <source></source>
        <translation>Zähler im Fahrbetrieb</translation>
    </message>
    <message id="report_part_tests">
        <source></source>
        <translation>Testergebnisse</translation>
    </message>
    <message id="report_nothing_unread">
        <source></source>
        <translation>Alles Gefragte wurde mitgeteilt.</translation>
    </message>
    <message id="report_other_car">
        <source></source>
        <translation>Diese Berichte sind von zwei verschiedenen Autos: %1 und %2.</translation>
    </message>
    <message id="report_no_changes">
        <source></source>
        <translation>Nichts, was beide Berichte mitteilen, hat sich geändert.</translation>
    </message>
    <message id="ui_rail_report">
        <source></source>
        <translation>Bericht</translation>
    </message>
    <message id="ui_report_title">
        <source></source>
        <translation>Fahrzeugbericht</translation>
    </message>
    <message id="ui_report_read">
        <source></source>
        <translation>Bericht le&amp;sen</translation>
    </message>
    <message id="ui_report_cancel">
        <source></source>
        <translation>Abb&amp;rechen</translation>
    </message>
    <message id="ui_report_save">
        <source></source>
        <translation>S&amp;peichern unter…</translation>
    </message>
    <message id="ui_report_print">
        <source></source>
        <translation>Druc&amp;ken…</translation>
    </message>
    <message id="ui_report_copy">
        <source></source>
        <translation>K&amp;opieren</translation>
    </message>
    <message id="ui_report_open">
        <source></source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message id="ui_report_compare">
        <source></source>
        <translation>&amp;Vergleichen…</translation>
    </message>
    <message id="ui_report_hide_vin">
        <source></source>
        <translation>Ende der VIN verber&amp;gen</translation>
    </message>
    <message id="ui_report_hide_vin_hint">
        <source></source>
        <translation>Die letzten sechs Zeichen sind verborgen: auf dem Blatt und in allem, was gespeichert, gedruckt oder kopiert wird.</translation>
    </message>
    <message id="ui_report_empty">
        <source></source>
        <translation>„Bericht lesen“ fragt jedes Steuergerät nach Codes, Umgebungsdaten, Prüfbereitschaft, Testergebnissen und Kennung.</translation>
    </message>
    <message id="ui_report_save_title">
        <source></source>
        <translation>Bericht speichern</translation>
    </message>
    <message id="ui_report_open_title">
        <source></source>
        <translation>Bericht öffnen</translation>
    </message>
    <message id="ui_report_compare_title">
        <source></source>
        <translation>Früherer Bericht zum Vergleich</translation>
    </message>
    <message id="ui_report_not_saved">
        <source></source>
        <translation>Der Bericht wurde nicht gespeichert.</translation>
    </message>
    <message id="ui_report_saved">
        <source></source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message id="ui_report_copied">
        <source></source>
        <translation>Der Bericht ist in der Zwischenablage.</translation>
    </message>
    <message id="ui_report_not_opened">
        <source></source>
        <translation>Diese Datei lässt sich nicht als Bericht öffnen.</translation>
    </message>
    <message id="report_starting">
        <source></source>
        <translation>Adapter wird vorbereitet</translation>
    </message>
    <message id="report_progress">
        <source></source>
        <translation>Lese %1 (%2 von %3)</translation>
    </message>
    <message id="report_topic_adapter">
        <source></source>
        <translation>die Angaben des Adapters</translation>
    </message>
    <message id="report_topic_supported">
        <source></source>
        <translation>das Angebot der Steuergeräte</translation>
    </message>
    <message id="report_topic_status">
        <source></source>
        <translation>Leuchte und Prüfbereitschaft</translation>
    </message>
    <message id="report_topic_codes">
        <source></source>
        <translation>Fehlercodes</translation>
    </message>
    <message id="report_topic_readings">
        <source></source>
        <translation>Messwerte</translation>
    </message>
    <message id="report_topic_frames">
        <source></source>
        <translation>Umgebungsdaten</translation>
    </message>
    <message id="report_topic_identity">
        <source></source>
        <translation>Kennungen</translation>
    </message>
    <message id="report_topic_tests">
        <source></source>
        <translation>Testergebnisse</translation>
    </message>
    <message id="report_done">
        <source></source>
        <translation>Der Bericht ist vollständig.</translation>
    </message>
    <message id="report_done_partly">
        <source></source>
        <translation>Der Bericht ist gelesen. Was nicht mitgeteilt wurde, steht am Ende.</translation>
    </message>
    <message id="report_nothing_told">
        <source></source>
        <translation>Das Auto hat nichts mitgeteilt.</translation>
    </message>
    <message id="report_cancelled">
        <source></source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
    <message id="ui_copy_rows">
        <source></source>
        <translation>Zeilen &amp;kopieren</translation>
    </message>
    <message id="ui_codes_to_report">
        <source></source>
        <translation>&amp;Speichern oder drucken: Fahrzeugbericht</translation>
    </message>
    <message id="ui_report_offer">
        <source></source>
        <translation>Vor dem Löschen anbie&amp;ten</translation>
    </message>
    <message id="ui_report_offer_hint">
        <source></source>
        <translation>Bevor Codes gelöscht werden, wird ein gelesener, nicht gespeicherter Bericht angeboten.</translation>
    </message>
    <message id="ui_report_before_clear">
        <source></source>
        <translation>Den Bericht vor dem Löschen speichern?</translation>
    </message>
    <message id="ui_report_before_clear_hint">
        <source></source>
        <translation>Das Löschen entfernt auch Umgebungsdaten und Testergebnisse. Der gelesene Bericht enthält sie.</translation>
    </message>
    <message id="ui_report_go_on">
        <source></source>
        <translation>Ohne Speichern weiter</translation>
    </message>
    <message id="report_none_so_far">
        <source></source>
        <translation>keine, soweit mitgeteilt</translation>
    </message>
    <message id="ui_report_save_first">
        <source></source>
        <translation>Speichern unter…</translation>
    </message>
    <message id="ui_report_text_file">
        <source></source>
        <translation>Text</translation>
    </message>
    <message id="report_off_so_far">
        <source></source>
        <translation>aus, soweit mitgeteilt</translation>
    </message>
    <message id="report_why_put_off">
        <source></source>
        <translation>das Steuergerät bat um Geduld und antwortete nicht innerhalb der Frist</translation>
    </message>
    <message id="ui_report_opened">
        <source></source>
        <translation>Geöffnet: %1</translation>
    </message>
    <message id="ui_code_from">
        <source></source>
        <translation>Vom Steuergerät: %1</translation>
    </message>
    <message id="report_name_Misfire">
        <source></source>
        <translation>Zündaussetzer</translation>
    </message>
    <message id="report_name_Fuel system">
        <source></source>
        <translation>Kraftstoffsystem</translation>
    </message>
    <message id="report_name_Comprehensive components">
        <source></source>
        <translation>Bauteile insgesamt</translation>
    </message>
    <message id="report_name_Catalyst">
        <source></source>
        <translation>Katalysator</translation>
    </message>
    <message id="report_name_Heated catalyst">
        <source></source>
        <translation>Beheizter Katalysator</translation>
    </message>
    <message id="report_name_Evaporative system">
        <source></source>
        <translation>Tankentlüftung</translation>
    </message>
    <message id="report_name_Secondary air system">
        <source></source>
        <translation>Sekundärluft</translation>
    </message>
    <message id="report_name_A/C refrigerant / petrol particulate filter">
        <source></source>
        <translation>Kältemittel / Otto-Partikelfilter</translation>
    </message>
    <message id="report_name_O2 sensor">
        <source></source>
        <translation>Lambdasonde</translation>
    </message>
    <message id="report_name_O2 sensor heater">
        <source></source>
        <translation>Heizung der Lambdasonde</translation>
    </message>
    <message id="report_name_EGR/VVT system">
        <source></source>
        <translation>AGR/VVT-System</translation>
    </message>
    <message id="report_name_NMHC catalyst">
        <source></source>
        <translation>NMHC-Katalysator</translation>
    </message>
    <message id="report_name_NOx/SCR aftertreatment">
        <source></source>
        <translation>NOx/SCR-Nachbehandlung</translation>
    </message>
    <message id="report_name_Boost pressure">
        <source></source>
        <translation>Ladedruck</translation>
    </message>
    <message id="report_name_Exhaust gas sensor">
        <source></source>
        <translation>Abgassensor</translation>
    </message>
    <message id="report_name_Particulate filter">
        <source></source>
        <translation>Partikelfilter</translation>
    </message>
    <message id="report_name_OBD monitoring conditions met">
        <source></source>
        <translation>Bedingungen für OBD-Prüfungen erfüllt</translation>
    </message>
    <message id="report_name_Ignition cycles">
        <source></source>
        <translation>Zündzyklen</translation>
    </message>
    <message id="report_name_Catalyst, bank 1">
        <source></source>
        <translation>Katalysator, Bank 1</translation>
    </message>
    <message id="report_name_Catalyst, bank 2">
        <source></source>
        <translation>Katalysator, Bank 2</translation>
    </message>
    <message id="report_name_O2 sensor, bank 1">
        <source></source>
        <translation>Lambdasonde, Bank 1</translation>
    </message>
    <message id="report_name_O2 sensor, bank 2">
        <source></source>
        <translation>Lambdasonde, Bank 2</translation>
    </message>
    <message id="report_name_Secondary O2 sensor, bank 1">
        <source></source>
        <translation>Zweite Lambdasonde, Bank 1</translation>
    </message>
    <message id="report_name_Secondary O2 sensor, bank 2">
        <source></source>
        <translation>Zweite Lambdasonde, Bank 2</translation>
    </message>
    <message id="report_name_NOx catalyst">
        <source></source>
        <translation>NOx-Katalysator</translation>
    </message>
    <message id="report_name_NOx adsorber">
        <source></source>
        <translation>NOx-Speicher</translation>
    </message>
</context>
</TS>
