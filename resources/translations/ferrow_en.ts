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
        <source>Not charging</source>
        <translation>Not charging</translation>
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
    <message id="%.1f W">
        <source>%.1f W</source>
        <translation>%.1f W</translation>
    </message>
    <message id="— W">
        <source>— W</source>
        <translation>— W</translation>
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
        <source>Time to full</source>
        <translation>Time to full</translation>
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
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>Approve Ferrow in System Settings › Login Items to start it at login</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>Move Ferrow to Applications to start it at login</translation>
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
    <message id="window.device_details">
        <source>Device details</source>
        <translation>Device details</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>Power, battery and cells at a glance</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>Take a reading now</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>Show or hide the sidebar</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>System</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>Updated at %1</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>Scroll to %1</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>Overview</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>Charge and health</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>Cells</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>Running on external power</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>Charging</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>This Mac has no battery; all power comes from its supply.</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>Adapter power is shared between the system and the battery.</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>The battery supplies the whole system.</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>Power distribution</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>DC input</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>Battery power</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>Power history</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>Time range</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>Waiting for readings</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>The chart fills in once a second.</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>Average</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>Peak</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>Watts</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>This Mac runs on external power only.</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>Design capacity</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>Full charge capacity</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>Nominal full charge capacity</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln time</numerusform>
            <numerusform>%Ln times</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>Cell voltages</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>No cell voltages</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>This battery does not report its cells.</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>Reported by the battery</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>Read from the system management controller</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>This Mac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>Once a second</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>GPU power</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>Battery serial</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>Total operating time</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>Lifetime history</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1 d %L2 h</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>Highest battery temperature</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>Lowest battery temperature</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>Average battery temperature</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>Highest pack voltage</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>Lowest pack voltage</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>Highest charge current</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>Highest discharge current</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>Safety protection events</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>Batteries</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>Charge</translation>
    </message>
    <message id="power.usb_c_contract">
        <source>USB-C %1 V · %2 A</source>
        <translation>USB-C %1 V · %2 A</translation>
    </message>
    <message id="power.usb_c_voltage">
        <source>USB-C %1 V</source>
        <translation>USB-C %1 V</translation>
    </message>
    <message id="section.energy_history">
        <source>History</source>
        <translation>History</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>History is off.</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>History is not being kept: %1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>No history yet: Ferrow records energy once a minute.</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow has been keeping history since %1</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>Range</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7 days</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30 days</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12 months</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>Energy</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>From the adapter</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>From the battery</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>Nothing recorded in this period</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>Recent sessions</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>No sessions recorded yet.</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>Battery health over time</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>Health (%)</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>Full-charge capacity (mAh)</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>On battery</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>On the adapter</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>On battery for %1 · %2 used</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>On the adapter for %1 · %2 delivered</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>Mean %1 · Peak %2</translation>
    </message>
    <message id="session.two_units">
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message id="session.minutes" numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln min</numerusform>
            <numerusform>%Ln min</numerusform>
        </translation>
    </message>
    <message id="session.hours" numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln h</numerusform>
            <numerusform>%Ln h</numerusform>
        </translation>
    </message>
    <message id="session.days" numerus="yes">
        <source>%Ln d</source>
        <translation>
            <numerusform>%Ln day</numerusform>
            <numerusform>%Ln days</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>Keep energy history</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>Turn off energy history?</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>Delete history</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>System</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>This computer runs on external power only.</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>This computer has no battery; all power comes from its supply.</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>This computer</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>not available</translation>
    </message>
    <message id="accessibility.reading">
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message id="accessibility.note">
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message id="accessibility.watts">
        <source>%1 watts</source>
        <translation>%1 watts</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1 volts</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1 amperes</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>%1 degrees Celsius</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln milliampere-hour</numerusform>
            <numerusform>%Ln milliampere-hours</numerusform>
        </translation>
    </message>
    <message id="accessibility.hertz" numerus="yes">
        <source>%Ln Hz</source>
        <translation>
            <numerusform>%Ln hertz</numerusform>
            <numerusform>%Ln hertz</numerusform>
        </translation>
    </message>
    <message id="accessibility.cell">
        <source>Cell %L1</source>
        <translation>Cell %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>Adapter %1 to system %2</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>Battery %1 to system %2</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>Adapter %1 to system %2 and battery %3</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>Adapter %1 and battery %2 to system %3</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>Charger cannot keep up</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>The battery has been draining %1 although external power is connected: system %2, battery %3.</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>Charging slowly</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>Battery hot</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>The battery is at %1, at or above the limit of %2.</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>The battery has been at %1 or warmer %2 while charging: now %3.</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>Battery cells out of balance</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>Charge level reached</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>The battery has reached the chosen level of %1.</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>for %Ln minute</numerusform>
            <numerusform>for %Ln minutes</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>over the last %Ln minute</numerusform>
            <numerusform>over the last %Ln minutes</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 and %Ln more</numerusform>
            <numerusform>%1 and %Ln more</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>Alerts</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>Each alert is shown once and repeated at most every %Ln minute while it holds.</numerusform>
            <numerusform>Each alert is shown once and repeated at most every %Ln minutes while it holds.</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>While charging, above</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>At any time, above</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>Notifications are turned off for Ferrow in the system&apos;s settings</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>Energy by application</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>Most energy this session</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>Most energy since Ferrow started</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>Nothing measured yet this session</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>Nothing measured yet</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>Period</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7 days</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30 days</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>Over %1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>Energy</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>Mean power</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>Share</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>CPU time</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>Share of CPU time</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>Sort by energy</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>Sort by mean power</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow (this app)</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>since it started</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>System and other users</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>Other applications</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>Measured by the system for each application</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>CPU time only: this machine does not measure energy</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 marks an estimate</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>estimated</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>measured</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>Nothing recorded for this period yet</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>Reading…</translation>
    </message>
    <message id="apps.seconds" numerus="yes">
        <source>%Ln s</source>
        <translation>
            <numerusform>%Ln s</numerusform>
            <numerusform>%Ln s</numerusform>
        </translation>
    </message>
    <message id="accessibility.percent">
        <source>%1 percent</source>
        <translation>%1 percent</translation>
    </message>
    <message id="accessibility.watt_hours">
        <source>%1 watt-hours</source>
        <translation>%1 watt-hours</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln milliwatt-hour</numerusform>
            <numerusform>%Ln milliwatt-hours</numerusform>
        </translation>
    </message>
</context>
</TS>
