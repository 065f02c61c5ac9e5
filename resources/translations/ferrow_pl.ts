<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>Zasilanie zewnętrzne</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>Oczekiwanie na dane</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>Na baterii</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>Ładowanie</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>Nie ładuje</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>W pełni naładowana</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>Zasilacz podłączony</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>Brak zasilania zewnętrznego</translation>
    </message>
    <message id="duration.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="duration.hours_minutes">
        <source>%L1 h %L2 min</source>
        <translation>%L1 godz. %L2 min</translation>
    </message>
    <message id="battery.health.good">
        <source>Good</source>
        <translation>Dobra</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>Średnia</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>Słaba</translation>
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
        <translation>Monitor zasilania</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>Symulowany notebook · nie ten komputer</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>Symulowany komputer stacjonarny · nie ten komputer</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>Na żywo</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>ROZŁADOWANIE BATERII</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>Łącznie system</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>Przepływ energii na żywo</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>Zasilacz</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>System Maca</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>Źródło zasilania</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>Częstotliwość próbkowania</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>Nie wykryto baterii</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>Ten Mac działa wyłącznie na zasilaniu zewnętrznym.</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>Liczba cykli</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>Napięcie</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>Natężenie</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>Stan ładowania</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>Stan baterii</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>Do pełnego naładowania</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>Kondycja</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1% · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>Zezwól w Ustawieniach systemowych › Rzeczy otwierane</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>Przenieś Ferrow do Aplikacji, by startował po zalogowaniu</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>Otwieraj po zalogowaniu</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>Pokazuj waty na pasku menu</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>Otwórz szczegóły</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>Wykresy, ogniwa i historia baterii</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>Otwórz witrynę Ferrow</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>Zakończ Ferrow</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>Pokaż panel</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>Brak obszaru paska menu na tym pulpicie: panel otwiera się jako okno.</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow (symulacja) · %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>Szczegóły urządzenia</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>Moc, bateria i ogniwa w skrócie</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>Odśwież</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>Wykonaj pomiar teraz</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>Pokaż lub ukryj pasek boczny</translation>
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
        <translation>Zaktualizowano o %1</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>Przewiń do „%1”</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>Przegląd</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>Moc</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>Naładowanie i kondycja</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>Ogniwa</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>Urządzenie</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>Praca na zasilaniu zewnętrznym</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>Ładowanie</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>Ten Mac nie ma baterii; całą energię dostarcza jego zasilacz.</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>Moc zasilacza jest dzielona między system a baterię.</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>Bateria zasila cały system.</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>Rozkład mocy</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>Moc układu pozostaje pusta: na tym komputerze z Linuksem tylko root może odczytać liczniki energii procesora. Sekcja „Chip power on Linux” w README pokazuje regułę udev, która na to pozwala.</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>Wejście DC</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>Moc baterii</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>Historia mocy</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>Zakres czasu</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>Oczekiwanie na pomiary</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>Wykres uzupełnia się co sekundę.</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>Średnia</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>Szczyt</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>Waty</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>Ten Mac działa wyłącznie na zasilaniu zewnętrznym.</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>Pojemność projektowa</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>Pojemność przy pełnym naładowaniu</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>Nominalna pojemność przy pełnym naładowaniu</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln raz</numerusform>
            <numerusform>%Ln razy</numerusform>
            <numerusform>%Ln razy</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>Napięcia ogniw</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>Brak napięć ogniw</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>Ta bateria nie podaje danych ogniw.</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>Podane przez baterię</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>Odczytane z kontrolera zarządzania systemem</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>Ten Mac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>Raz na sekundę</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>Moc GPU</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>Numer seryjny baterii</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>Łączny czas pracy</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>Historia użytkowania</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1 dn. %L2 godz.</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>Najwyższa temperatura baterii</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>Najniższa temperatura baterii</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>Średnia temperatura baterii</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>Najwyższe napięcie pakietu</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>Najniższe napięcie pakietu</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>Największy prąd ładowania</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>Największy prąd rozładowania</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>Zdarzenia zabezpieczeń</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>Akumulatory</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>Naładowanie</translation>
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
        <translation>Historia</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>Historia jest wyłączona.</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>Historia nie jest zapisywana: %1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>Brak historii: Ferrow zapisuje energię raz na minutę.</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow zapisuje historię od %1</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>Zakres</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7 dni</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30 dni</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12 miesięcy</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>Z zasilacza</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>Z baterii</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>Brak zapisów w tym okresie</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>Ostatnie sesje</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>Nie zapisano jeszcze żadnych sesji.</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>Kondycja baterii w czasie</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>Kondycja (%)</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>Pojemność przy pełnym naładowaniu (mAh)</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>Na baterii</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>Na zasilaczu</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>Na baterii od %1 · zużyto %2</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>Na zasilaczu od %1 · dostarczono %2</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>Średnio %1 · Szczyt %2</translation>
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
            <numerusform>%Ln min</numerusform>
        </translation>
    </message>
    <message id="session.hours" numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln godz.</numerusform>
            <numerusform>%Ln godz.</numerusform>
            <numerusform>%Ln godz.</numerusform>
        </translation>
    </message>
    <message id="session.days" numerus="yes">
        <source>%Ln d</source>
        <translation>
            <numerusform>%Ln dzień</numerusform>
            <numerusform>%Ln dni</numerusform>
            <numerusform>%Ln dni</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>Zachowuj historię energii</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>Wyłączyć historię energii?</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow usunie historię energii przechowywaną na tym komputerze. Tej operacji nie można cofnąć.</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>Usuń historię</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>System</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>Ten komputer działa wyłącznie na zasilaniu zewnętrznym.</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>Ten komputer nie ma baterii; całą energię dostarcza jego zasilacz.</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>Ten komputer</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>niedostępne</translation>
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
        <translation>%1 wata</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1 wolta</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1 ampera</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>%1 stopnia Celsjusza</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln miliamperogodzina</numerusform>
            <numerusform>%Ln miliamperogodziny</numerusform>
            <numerusform>%Ln miliamperogodzin</numerusform>
        </translation>
    </message>
    <message id="accessibility.hertz" numerus="yes">
        <source>%Ln Hz</source>
        <translation>
            <numerusform>%Ln herc</numerusform>
            <numerusform>%Ln herce</numerusform>
            <numerusform>%Ln herców</numerusform>
        </translation>
    </message>
    <message id="accessibility.cell">
        <source>Cell %L1</source>
        <translation>Ogniwo %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>Zasilacz %1 do systemu %2</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>Bateria %1 do systemu %2</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>Zasilacz %1 do systemu %2 i baterii %3</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>Zasilacz %1 i bateria %2 do systemu %3</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>Zasilacz nie nadąża</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>Bateria rozładowuje się %1, mimo że podłączone jest zasilanie zewnętrzne: zasilacz %2 (%3, %4), system %5, bateria %6.</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>Bateria rozładowuje się %1, mimo że podłączone jest zasilanie zewnętrzne: system %2, bateria %3.</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>Wolne ładowanie</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>Źródło USB-C dostarcza tylko %1, więc bateria ładuje się wolno: zasilacz %2, system %3, bateria %4.</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>Zasilacz dostarcza mniej, niż system pobierał średnio %1, więc bateria ładuje się wolno: zasilacz %2, system %3.</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>Bateria gorąca</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>Bateria ma %1, czyli osiąga lub przekracza limit %2.</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>Podczas ładowania bateria ma %1 lub więcej, i to %2: teraz %3.</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>Ogniwa baterii niezrównoważone</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>Napięcia ogniw w spoczynku różnią się o ponad %1, i to %2: teraz o %3 (od %4 do %5).</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>Osiągnięto poziom naładowania</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>Bateria osiągnęła wybrany poziom %1.</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>od %Ln minuty</numerusform>
            <numerusform>od %Ln minut</numerusform>
            <numerusform>od %Ln minut</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>przez ostatnią %Ln minutę</numerusform>
            <numerusform>przez ostatnie %Ln minuty</numerusform>
            <numerusform>przez ostatnie %Ln minut</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 i jeszcze %Ln</numerusform>
            <numerusform>%1 i jeszcze %Ln</numerusform>
            <numerusform>%1 i jeszcze %Ln</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>Alerty</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>Każdy alert pojawia się raz i, dopóki trwa, powtarza się najwyżej co %Ln minutę.</numerusform>
            <numerusform>Każdy alert pojawia się raz i, dopóki trwa, powtarza się najwyżej co %Ln minuty.</numerusform>
            <numerusform>Każdy alert pojawia się raz i, dopóki trwa, powtarza się najwyżej co %Ln minut.</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>Podczas ładowania, powyżej</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>Zawsze, powyżej</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>Powiadomienia Ferrow są wyłączone w ustawieniach systemu</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>Aplikacje</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>Energia według aplikacji</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>Najwięcej energii w tej sesji</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>Najwięcej energii od uruchomienia Ferrow</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>W tej sesji nic jeszcze nie zmierzono</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>Jeszcze nic nie zmierzono</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>Okres</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>Sesja</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>Dziś</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7 dni</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30 dni</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>Przez %1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>Aplikacja</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>Średnia moc</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>Udział</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>Czas CPU</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>Udział w czasie CPU</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>Sortuj według energii</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>Sortuj według średniej mocy</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow (ta aplikacja)</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>od uruchomienia</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>System i inni użytkownicy</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>Inne aplikacje</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>Zmierzona przez system dla każdej aplikacji</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>Szacowana: zmierzona energia procesora podzielona według czasu CPU każdej aplikacji</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>Szacowana: udział procesora w zmierzonej mocy systemu, podzielony według czasu CPU</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>Tylko czas CPU: ten komputer nie mierzy energii</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 oznacza wartość szacowaną</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>szacowana</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>zmierzona</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>W tym okresie nic jeszcze nie zapisano</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrow nie przechowuje historii, więc listę ma tylko bieżąca sesja. Włącz „Zachowuj historię energii” w sekcji Historia, aby zachować kolejne dni.</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>Odczytywanie…</translation>
    </message>
    <message id="apps.seconds" numerus="yes">
        <source>%Ln s</source>
        <translation>
            <numerusform>%Ln s</numerusform>
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
        <translation>%1 watogodziny</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln miliwatogodzina</numerusform>
            <numerusform>%Ln miliwatogodziny</numerusform>
            <numerusform>%Ln miliwatogodzin</numerusform>
        </translation>
    </message>
</context>
</TS>
