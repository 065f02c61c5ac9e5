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
    <message id="FERROW">
        <source>FERROW</source>
        <translation>FERROW</translation>
    </message>
    <message id="app.menu_subtitle">
        <source>Power monitor</source>
        <translation>Power monitor</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>Simulated notebook · not this machine</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>Simulated desktop · not this machine</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>Waiting</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>BATTERY DISCHARGE</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>System total</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>Live power flow</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>Adapter</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Mac system</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>Power source</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>Sample rate</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>Battery</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>No battery detected</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>This Mac runs on external power only.</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>Cycle count</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>Voltage</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>Charge status</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>Battery status</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Full in</source>
        <translation>Full in</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>Health</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1% · %2</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>Launch at login</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>Show watts in menu bar</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>Open details</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>Charts, cells and battery history</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>Open the Ferrow website</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>Quit Ferrow</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>Show dashboard</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>No menu-bar area on this desktop: the dashboard opens as a window.</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow (simulated) · %1</translation>
    </message>
</context>
</TS>
