<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="KS_help">
        <source></source>
        <translation>Kestrom liest die On-Board-Diagnose (OBD-II) Ihres Autos über einen Adapter der Bauart ELM327.

Verbinden: Stecken Sie den Adapter in die Diagnosebuchse des Autos, meist unter dem Lenkrad, und schalten Sie die Zündung ein. Bei einem WLAN-Adapter verbinden Sie diesen Rechner zuerst mit dem Funknetz des Adapters, wählen dann in den Einstellungen WLAN und tragen Adresse und Port ein (meist 192.168.0.10 und 35000). Bei einem Bluetooth-Adapter wählen Sie Bluetooth; die erste Aufgabe, die Sie starten, fragt nach dem Gerät.

Fehlercodes: „Codes lesen“ zeigt die gespeicherten Codes mit ihrer Bedeutung, die Motorkontrollleuchte und den Stand der Abgasüberwachung. „Codes löschen“ löscht die Codes, schaltet die Leuchte aus und setzt die Überwachung zurück; tun Sie das bei stehendem Motor und erst, wenn Sie die Codes notiert haben.

Live-Daten: Wählen Sie die Art der Aufzeichnung und drücken Sie auf Start. Jeder Messwert hat ein kleines Diagramm; ein Klick zeigt ihn groß und auf dem Rundinstrument, mit Strg wählen Sie einen weiteren für das zweite Instrument. Die Liste der Messwerte und die Einheiten stehen in den Einstellungen.

Protokolle: Ist die Aufzeichnung in den Einstellungen eingeschaltet, wird jede Fahrt in eine eigene Datei im Ordner „loggies“ geschrieben; wo er liegt, sagt der Schalter Protokolle.

Experte: Geben Sie einen beliebigen Adapterbefehl (AT I) oder eine Anfrage (01 0C) ein und lesen Sie die unveränderte Antwort.

Keine Antwort? Prüfen Sie Zündung, Stecker und Funkverbindung und schließen Sie andere Programme, die den Adapter benutzen.</translation>
    </message>
    <message id="no_reply_from_car_MSG">
        <source></source>
        <translation>Das Auto hat nicht geantwortet. Schalten Sie die Zündung ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="no_reply_from_car_MSG_BT">
        <source></source>
        <translation>Der Adapter arbeitet, aber das Auto hat nicht geantwortet.

Bitte prüfen Sie:
• Die Zündung ist eingeschaltet oder der Motor läuft.
• Der Adapter sitzt fest in der Diagnosebuchse.
• Der in der Bluetooth-Liste gewählte Adapter ist der in diesem Auto.
• Kein Telefon und kein anderes Programm benutzt den Adapter zur selben Zeit.
• Das Auto unterstützt OBD-II.</translation>
    </message>
    <message id="no_reply_from_car_MSG_TCP">
        <source></source>
        <translation>Der Adapter arbeitet, aber das Auto hat nicht geantwortet.

Bitte prüfen Sie:
• Die Zündung ist eingeschaltet oder der Motor läuft.
• Der Adapter sitzt fest in der Diagnosebuchse.
• Dieser Rechner ist mit dem WLAN des Adapters in diesem Auto verbunden.
• Kein Telefon und kein anderes Programm benutzt den Adapter zur selben Zeit.
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
</context>
</TS>
