<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="KS_help">
        <source></source>
        <translation>Kestrom reads your car's on-board diagnostics (OBD-II) through an ELM327-type adapter.

Connect: plug the adapter into the car's diagnostic port, usually below the steering wheel, and switch the ignition on. For a Wi-Fi adapter, join the adapter's own wireless network first, then choose Wi-Fi in Preferences and enter its address and port (most use 192.168.0.10 and 35000). For a Bluetooth adapter, choose Bluetooth; the first task you start asks which device to use.

Trouble codes: “Read codes” shows the stored codes with their meaning, the malfunction lamp and the readiness monitors. “Clear codes” erases the codes, switches the lamp off and resets the monitors; do it with the engine off, and only after writing the codes down.

Live data: choose a kind of run and press start. Each parameter has a small chart; click one to see it large and on the dial, hold Ctrl to pick a second one for the second dial. Preferences holds the list of parameters and the units.

Logs: with run logging switched on in Preferences, every run is written to a file of its own in the folder “loggies”; the Logs switch says where that folder is.

Expert: type any adapter command (AT I) or request (01 0C) and read the raw reply.

No answer? Check the ignition, the plug and the wireless connection, and close other programs that use the adapter.</translation>
    </message>
    <message id="no_reply_from_car_MSG">
        <source></source>
        <translation>The car did not answer. Switch the ignition on and try again.</translation>
    </message>
    <message id="no_reply_from_car_MSG_BT">
        <source></source>
        <translation>The adapter works, but the car did not answer.

Please check:
• The ignition is on, or the engine is running.
• The adapter sits firmly in the diagnostic port.
• The adapter chosen in the Bluetooth list is the one in this car.
• No phone or other program uses the adapter at the same time.
• The car supports OBD-II.</translation>
    </message>
    <message id="no_reply_from_car_MSG_TCP">
        <source></source>
        <translation>The adapter works, but the car did not answer.

Please check:
• The ignition is on, or the engine is running.
• The adapter sits firmly in the diagnostic port.
• This computer is joined to the Wi-Fi network of the adapter in this car.
• No phone or other program uses the adapter at the same time.
• The car supports OBD-II.</translation>
    </message>
    <message id="init_OBD_error_MSG">
        <source></source>
        <translation>The adapter could not start the car's diagnostic bus. Switch the ignition off and on again, make sure that the adapter sits firmly in the diagnostic port, and try once more.</translation>
    </message>
    <message id="blank_input_MSG">
        <source></source>
        <translation>Type a command first, for example AT I or 01 0C.</translation>
    </message>
    <message id="FIELD_ENGINE_MPG">
        <source></source>
        <translation>Fuel Economy</translation>
    </message>
    <message id="FIELD_ENGINE_BOOST">
        <source></source>
        <translation>Boost Pressure</translation>
    </message>
</context>
</TS>
