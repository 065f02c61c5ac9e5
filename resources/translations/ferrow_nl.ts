<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>Op externe voeding</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>Wachten op meetgegevens</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>Op batterij</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>Wordt opgeladen</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>Laadt niet op</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>Volledig opgeladen</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>Netadapter aangesloten</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>Geen externe voeding</translation>
    </message>
    <message id="duration.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="duration.hours_minutes">
        <source>%L1 h %L2 min</source>
        <translation>%L1 u %L2 min</translation>
    </message>
    <message id="battery.health.good">
        <source>Good</source>
        <translation>Goed</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>Redelijk</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>Slecht</translation>
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
        <translation>Stroommonitor</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>Gesimuleerde notebook · niet deze computer</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>Gesimuleerde desktop · niet deze computer</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>Wachten</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>BATTERIJONTLADING</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>Systeem totaal</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>Live energiestroom</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>Adapter</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Mac-systeem</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>Stroombron</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>Meetfrequentie</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>Batterij</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>Geen batterij gevonden</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>Deze Mac werkt alleen op externe voeding.</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>Aantal cycli</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>Spanning</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>Stroom</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>Laadstatus</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>Batterijstatus</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>Vol over</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>Conditie</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1% · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>Sta Ferrow toe in Systeeminstellingen › Inloguitvoer</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>Zet Ferrow in Apps om het bij inloggen te starten</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>Openen bij inloggen</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>Watt in menubalk tonen</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>Details openen</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>Grafieken, cellen en batterijgeschiedenis</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>Website van Ferrow openen</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>Ferrow stoppen</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>Dashboard tonen</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>Geen menubalkgebied op dit bureaublad: het dashboard opent als venster.</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow (gesimuleerd) · %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>Apparaatdetails</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>Vermogen, batterij en cellen in één oogopslag</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>Vernieuwen</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>Nu een meting doen</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>Zijbalk tonen of verbergen</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>Systeem</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>Bijgewerkt om %1</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>Scrol naar ‘%1’</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>Overzicht</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>Vermogen</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>Lading en conditie</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>Cellen</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>Apparaat</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>Werkt op externe voeding</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>Wordt opgeladen</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>Deze Mac heeft geen batterij; alle stroom komt van de voeding.</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>Het vermogen van de adapter wordt verdeeld tussen het systeem en de batterij.</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>De batterij voedt het hele systeem.</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>Vermogensverdeling</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>Chipvermogen blijft leeg: op deze Linux-machine mag alleen root de energietellers van de processor lezen. Het gedeelte ‘Chip power on Linux’ van de README toont een udev-regel die het toestaat.</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>DC-ingang</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>Batterijvermogen</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>Vermogensgeschiedenis</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>Tijdsbereik</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>Wachten op metingen</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>De grafiek vult zich elke seconde aan.</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>Gemiddeld</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>Piek</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>Watt</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>Deze Mac werkt alleen op externe voeding.</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>Ontwerpcapaciteit</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>Volledige laadcapaciteit</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>Nominale volledige laadcapaciteit</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln keer</numerusform>
            <numerusform>%Ln keer</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>Celspanningen</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>Geen celspanningen</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>Deze batterij meldt haar cellen niet.</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>Gemeld door de batterij</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>Gelezen uit de systeembeheercontroller</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>Deze Mac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>Eén keer per seconde</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>GPU-vermogen</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>Serienummer batterij</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>Totale gebruiksduur</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>Geschiedenis over de levensduur</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1 d %L2 u</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>Hoogste batterijtemperatuur</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>Laagste batterijtemperatuur</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>Gemiddelde batterijtemperatuur</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>Hoogste pakketspanning</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>Laagste pakketspanning</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>Hoogste laadstroom</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>Hoogste ontlaadstroom</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>Veiligheidsbeveiligingen</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>Accu&apos;s</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>Lading</translation>
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
        <translation>Geschiedenis</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>De geschiedenis staat uit.</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>Er wordt geen geschiedenis bijgehouden: %1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>Nog geen geschiedenis: Ferrow legt de energie eens per minuut vast.</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow houdt de geschiedenis bij sinds %1</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>Periode</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7 dagen</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30 dagen</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12 maanden</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>Energie</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>Van de adapter</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>Van de batterij</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>Niets vastgelegd in deze periode</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>Recente sessies</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>Nog geen sessies vastgelegd.</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>Batterijconditie in de loop van de tijd</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>Conditie (%)</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>Capaciteit bij volledige lading (mAh)</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>Op batterij</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>Op de adapter</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>%1 op batterij · %2 verbruikt</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>%1 op de adapter · %2 geleverd</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>Gemiddeld %1 · Piek %2</translation>
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
            <numerusform>%Ln u</numerusform>
            <numerusform>%Ln u</numerusform>
        </translation>
    </message>
    <message id="session.days" numerus="yes">
        <source>%Ln d</source>
        <translation>
            <numerusform>%Ln dag</numerusform>
            <numerusform>%Ln dagen</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>Energiegeschiedenis bewaren</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>Energiegeschiedenis uitschakelen?</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow verwijdert de energiegeschiedenis die op deze computer is bewaard. Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>Geschiedenis verwijderen</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>Systeem</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>Deze computer werkt alleen op externe voeding.</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>Deze computer heeft geen batterij; alle stroom komt van de voeding.</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>Deze computer</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>niet beschikbaar</translation>
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
        <translation>%1 watt</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1 volt</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1 ampère</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>%1 graden Celsius</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln milliampère-uur</numerusform>
            <numerusform>%Ln milliampère-uur</numerusform>
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
        <translation>Cel %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>Adapter %1 naar systeem %2</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>Batterij %1 naar systeem %2</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>Adapter %1 naar systeem %2 en batterij %3</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>Adapter %1 en batterij %2 naar systeem %3</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>Lader kan het niet bijhouden</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>De batterij ontlaadt %1 terwijl externe voeding is aangesloten: adapter %2 (%3, %4), systeem %5, batterij %6.</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>De batterij ontlaadt %1 terwijl externe voeding is aangesloten: systeem %2, batterij %3.</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>Langzaam laden</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>De USB-C-bron levert maar %1, dus de batterij laadt langzaam: adapter %2, systeem %3, batterij %4.</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>De adapter levert minder dan het systeem %1 gemiddeld verbruikte, dus de batterij laadt langzaam: adapter %2, systeem %3.</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>Batterij heet</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>De batterij is %1, op of boven de grens van %2.</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>De batterij is tijdens het laden %1 of warmer, en dat %2: nu %3.</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>Batterijcellen uit balans</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>De celspanningen liggen in rust meer dan %1 uit elkaar, en dat %2: nu %3 (%4 tot %5).</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>Laadniveau bereikt</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>De batterij heeft het gekozen niveau van %1 bereikt.</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>al %Ln minuut</numerusform>
            <numerusform>al %Ln minuten</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>in de laatste %Ln minuut</numerusform>
            <numerusform>in de laatste %Ln minuten</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 en nog %Ln</numerusform>
            <numerusform>%1 en nog %Ln</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>Waarschuwingen</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>Elke waarschuwing verschijnt één keer en wordt, zolang ze aanhoudt, hoogstens elke %Ln minuut herhaald.</numerusform>
            <numerusform>Elke waarschuwing verschijnt één keer en wordt, zolang ze aanhoudt, hoogstens elke %Ln minuten herhaald.</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>Tijdens opladen, boven</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>Altijd, boven</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>Meldingen voor Ferrow staan uit in de systeeminstellingen</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>Apps</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>Energie per app</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>Meeste energie deze sessie</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>Meeste energie sinds de start van Ferrow</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>Deze sessie nog niets gemeten</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>Nog niets gemeten</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>Sessie</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7 dagen</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30 dagen</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>Over %1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>App</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>Energie</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>Gemiddeld vermogen</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>Aandeel</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>CPU-tijd</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>Aandeel in CPU-tijd</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>Sorteren op energie</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>Sorteren op gemiddeld vermogen</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow (deze app)</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>sinds de start</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>Systeem en andere gebruikers</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>Andere apps</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>Door het systeem per app gemeten</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>Geschat: de gemeten energie van de processor, verdeeld naar de CPU-tijd van elke app</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>Geschat: het aandeel van de processor in het gemeten vermogen van het systeem, verdeeld naar CPU-tijd</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>Alleen CPU-tijd: deze computer meet geen energie</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 geeft een schatting aan</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>geschat</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>gemeten</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>Voor deze periode nog niets vastgelegd</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrow bewaart geen geschiedenis, dus alleen de huidige sessie heeft een lijst. Zet ‘Energiegeschiedenis bewaren’ aan bij Geschiedenis om de komende dagen te bewaren.</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>Lezen…</translation>
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
        <translation>%1 procent</translation>
    </message>
    <message id="accessibility.watt_hours">
        <source>%1 watt-hours</source>
        <translation>%1 wattuur</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln milliwattuur</numerusform>
            <numerusform>%Ln milliwattuur</numerusform>
        </translation>
    </message>
</context>
</TS>
