<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>On external power</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>Waiting for telemetry</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>On battery</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>Charging</translation>
    </message>
    <message id="status.power_connected">
        <source>Power connected</source>
        <translation>Power connected, not charging</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>Fully charged</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>AC power connected</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>No external power</translation>
    </message>
    <message id="duration.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="duration.hours_minutes">
        <source>%L1 h %L2 min</source>
        <translation>%L1 h %L2 min</translation>
    </message>
    <message id="battery.health.good">
        <source>Good</source>
        <translation>Good</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>Fair</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>Poor</translation>
    </message>
</context>
</TS>
