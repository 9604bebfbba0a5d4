<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_HK" sourcelanguage="en">
<context>
    <name>Panel</name>
    <message>
        <source>%1 are chosen, and there is room for %2: the last cell shows the last.</source>
        <translation>揀咗 %1 項，得 %2 格：最後一格顯示最後一項。</translation>
    </message>
    <message>
        <source>%1 could not be read whole and will be kept as %2</source>
        <translation>%1 讀唔晒，會保留做 %2</translation>
    </message>
    <message>
        <source>%1 has changed since you chose it: press %2 to load it as it is now</source>
        <translation>%1 喺你揀咗之後改變咗：請撳 %2 載入而家嘅內容</translation>
    </message>
    <message>
        <source>%1 has lines of another program too; they are in the log now</source>
        <translation>%1 入面仲有另一個程式寫嘅行，而家已經併入記錄</translation>
    </message>
    <message>
        <source>%1 has no data</source>
        <translation>%1 入面冇數據</translation>
    </message>
    <message>
        <source>%1 has no record of what was chosen</source>
        <translation>%1 入面冇所揀通道嘅波形</translation>
    </message>
    <message>
        <source>%1 has no spectrum: its scales are not known, or its record is cut</source>
        <translation>%1 沒有頻譜：刻度未知或記錄不完整</translation>
    </message>
    <message>
        <source>%1 has too few brackets: values of the report stand in wrong places</source>
        <translation>%1 嘅方括號太少：報告有啲數值放錯位</translation>
    </message>
    <message>
        <source>%1 holds no setup</source>
        <translation>%1 入面冇設定</translation>
    </message>
    <message>
        <source>%1 in divisions: its scale is not known</source>
        <translation>%1 以格為單位：刻度未知</translation>
    </message>
    <message>
        <source>%1 in divisions: math has no volts</source>
        <translation>%1 以格為單位：數學運算冇伏特值</translation>
    </message>
    <message>
        <source>%1 is clipped: levels and harmonics are not the signal's own</source>
        <translation>%1 畀削波：電平同諧波唔係訊號本身嘅</translation>
    </message>
    <message>
        <source>%1 is no value</source>
        <translation>%1 唔係有效值</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 條記錄</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>%1 was changed by another program, and that is kept as %2</source>
        <translation>%1 俾另一個程式改過，嗰個版本會保留做 %2</translation>
    </message>
    <message>
        <source>%1 was not loaded whole</source>
        <translation>%1 未能完整載入</translation>
    </message>
    <message>
        <source>%1 was not loaded: %2</source>
        <translation>未能載入 %1：%2</translation>
    </message>
    <message>
        <source>%1, %2: different sweeps</source>
        <translation>%1、%2：唔同次掃描</translation>
    </message>
    <message>
        <source>%1: %2 from line to line</source>
        <translation>%1：譜線間隔 %2</translation>
    </message>
    <message>
        <source>%1: %2 of %3 settings not confirmed</source>
        <translation>%1：%3 項設定有 %2 項未確認</translation>
    </message>
    <message>
        <source>%1: %2, %3 to %4</source>
        <translation>%1：%2，%3 至 %4</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4</source>
        <translation>%1：%2，%3，%4</translation>
    </message>
    <message>
        <source>%1: drawn at position %2, not at %3</source>
        <translation>%1：條線畫咗喺位置 %2，唔係 %3</translation>
    </message>
    <message>
        <source>%1: earlier records under these scales: %2</source>
        <translation>%1：呢個刻度下更早嘅記錄：%2 條</translation>
    </message>
    <message>
        <source>%1: given up</source>
        <translation>%1：已經放棄</translation>
    </message>
    <message>
        <source>%1: given up, %2 of %3 not answered</source>
        <translation>%1：已經放棄，%3 個有 %2 個未有回應</translation>
    </message>
    <message>
        <source>%1: last record %2 min ago</source>
        <translation>%1：最近嘅記錄係 %2 分鐘前</translation>
    </message>
    <message>
        <source>%1: last record %2 s ago</source>
        <translation>%1：最近嘅記錄係 %2 秒前</translation>
    </message>
    <message>
        <source>%1: last record over %2 s ago</source>
        <translation>%1：最近嘅記錄係 %2 秒幾之前</translation>
    </message>
    <message>
        <source>%1: live</source>
        <translation>%1：實時</translation>
    </message>
    <message>
        <source>%1: made at %2</source>
        <translation>%1：記錄嗰陣係 %2</translation>
    </message>
    <message>
        <source>%1: mean of %2 spectra, %3 from line to line</source>
        <translation>%1：%2 個頻譜嘅平均，譜線間隔 %3</translation>
    </message>
    <message>
        <source>%1: no answer to %2 of %3 questions</source>
        <translation>%1：%3 個查詢有 %2 個冇回應</translation>
    </message>
    <message>
        <source>%1: no answer to %2 of %3 questions, %4 not asked</source>
        <translation>%1：%3 個查詢有 %2 個冇回應，%4 個冇發出</translation>
    </message>
    <message>
        <source>%1: no record yet</source>
        <translation>%1：未有記錄</translation>
    </message>
    <message>
        <source>%1: not known whether recorded at %2</source>
        <translation>%1：唔知係咪用 %2 記錄</translation>
    </message>
    <message>
        <source>%1: not the channel, but %2</source>
        <translation>%1：唔係通道本身，而係 %2</translation>
    </message>
    <message>
        <source>%1: question %2 of %3</source>
        <translation>%1：第 %2 個查詢，共 %3 個</translation>
    </message>
    <message>
        <source>%1: question %2 of %3, %4 not answered</source>
        <translation>%1：第 %2 個查詢，共 %3 個，%4 個冇回應</translation>
    </message>
    <message>
        <source>%1: recorded at %2, not at %3</source>
        <translation>%1：用 %2 記錄，唔係 %3</translation>
    </message>
    <message>
        <source>%1: scale not known</source>
        <translation>%1：刻度未知</translation>
    </message>
    <message>
        <source>%1: setting %2 of %3</source>
        <translation>%1：第 %2 項設定，共 %3 項</translation>
    </message>
    <message>
        <source>%1: setting %2 of %3, %4 not confirmed</source>
        <translation>%1：第 %2 項設定，共 %3 項，%4 項未確認</translation>
    </message>
    <message>
        <source>%1: unchanged for %2 min</source>
        <translation>%1：%2 分鐘無變化</translation>
    </message>
    <message>
        <source>%1: unchanged for %2 s</source>
        <translation>%1：%2 秒無變化</translation>
    </message>
    <message>
        <source>%1: wait until the autoset is over</source>
        <translation>%1：請等自動設定完成</translation>
    </message>
    <message>
        <source>%1: wait until the settings have been sent</source>
        <translation>%1：請等設定傳送完</translation>
    </message>
    <message>
        <source>(%1 measured so far)</source>
        <translation>（已測量 %1 條）</translation>
    </message>
    <message>
        <source>(of several ports)</source>
        <translation>（嚟自多個連接埠）</translation>
    </message>
    <message>
        <source>1 record</source>
        <translation>1 條記錄</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 行</translation>
    </message>
    <message>
        <source>100mV per division</source>
        <translation>每格 100 mV</translation>
    </message>
    <message>
        <source>100ms per division</source>
        <translation>每格 100 ms</translation>
    </message>
    <message>
        <source>100ns per division</source>
        <translation>每格 100 ns</translation>
    </message>
    <message>
        <source>100us per division</source>
        <translation>每格 100 µs</translation>
    </message>
    <message>
        <source>10mV per division</source>
        <translation>每格 10 mV</translation>
    </message>
    <message>
        <source>10ms per division</source>
        <translation>每格 10 ms</translation>
    </message>
    <message>
        <source>10ns per division</source>
        <translation>每格 10 ns</translation>
    </message>
    <message>
        <source>10us per division</source>
        <translation>每格 10 µs</translation>
    </message>
    <message>
        <source>1V per division</source>
        <translation>每格 1 V</translation>
    </message>
    <message>
        <source>1ms per division</source>
        <translation>每格 1 ms</translation>
    </message>
    <message>
        <source>1s per division</source>
        <translation>每格 1 s</translation>
    </message>
    <message>
        <source>1us per division</source>
        <translation>每格 1 µs</translation>
    </message>
    <message>
        <source>200mV per division</source>
        <translation>每格 200 mV</translation>
    </message>
    <message>
        <source>200ms per division</source>
        <translation>每格 200 ms</translation>
    </message>
    <message>
        <source>200ns per division</source>
        <translation>每格 200 ns</translation>
    </message>
    <message>
        <source>200us per division</source>
        <translation>每格 200 µs</translation>
    </message>
    <message>
        <source>20mV per division</source>
        <translation>每格 20 mV</translation>
    </message>
    <message>
        <source>20ms per division</source>
        <translation>每格 20 ms</translation>
    </message>
    <message>
        <source>20ns per division</source>
        <translation>每格 20 ns</translation>
    </message>
    <message>
        <source>20us per division</source>
        <translation>每格 20 µs</translation>
    </message>
    <message>
        <source>2V per division</source>
        <translation>每格 2 V</translation>
    </message>
    <message>
        <source>2mV per division</source>
        <translation>每格 2 mV</translation>
    </message>
    <message>
        <source>2ms per division</source>
        <translation>每格 2 ms</translation>
    </message>
    <message>
        <source>2ns per division</source>
        <translation>每格 2 ns</translation>
    </message>
    <message>
        <source>2s per division</source>
        <translation>每格 2 s</translation>
    </message>
    <message>
        <source>2us per division</source>
        <translation>每格 2 µs</translation>
    </message>
    <message>
        <source>500mV per division</source>
        <translation>每格 500 mV</translation>
    </message>
    <message>
        <source>500ms per division</source>
        <translation>每格 500 ms</translation>
    </message>
    <message>
        <source>500ns per division</source>
        <translation>每格 500 ns</translation>
    </message>
    <message>
        <source>500us per division</source>
        <translation>每格 500 µs</translation>
    </message>
    <message>
        <source>50mV per division</source>
        <translation>每格 50 mV</translation>
    </message>
    <message>
        <source>50ms per division</source>
        <translation>每格 50 ms</translation>
    </message>
    <message>
        <source>50ns per division</source>
        <translation>每格 50 ns</translation>
    </message>
    <message>
        <source>50us per division</source>
        <translation>每格 50 µs</translation>
    </message>
    <message>
        <source>5V per division</source>
        <translation>每格 5 V</translation>
    </message>
    <message>
        <source>5mV per division</source>
        <translation>每格 5 mV</translation>
    </message>
    <message>
        <source>5ms per division</source>
        <translation>每格 5 ms</translation>
    </message>
    <message>
        <source>5ns per division</source>
        <translation>每格 5 ns</translation>
    </message>
    <message>
        <source>5s per division</source>
        <translation>每格 5 s</translation>
    </message>
    <message>
        <source>5us per division</source>
        <translation>每格 5 µs</translation>
    </message>
    <message>
        <source>A record of the recorder is %1</source>
        <translation>記錄儀嘅一條記錄係 %1</translation>
    </message>
    <message>
        <source>A reply is missing: the scales are certain in %1 s</source>
        <translation>欠一個回應：刻度會喺 %1 秒後確定</translation>
    </message>
    <message>
        <source>AC RMS</source>
        <translation>交流有效值</translation>
    </message>
    <message>
        <source>About Tracewell</source>
        <translation>關於 Tracewell</translation>
    </message>
    <message>
        <source>Acquisition mode and averaging</source>
        <translation>擷取模式同平均</translation>
    </message>
    <message>
        <source>Advanced trigger: Delay</source>
        <translation>進階觸發：延遲</translation>
    </message>
    <message>
        <source>Advanced trigger: Event</source>
        <translation>進階觸發：事件</translation>
    </message>
    <message>
        <source>Advanced trigger: Level</source>
        <translation>進階觸發：電平</translation>
    </message>
    <message>
        <source>Advanced trigger: Mode</source>
        <translation>進階觸發：模式</translation>
    </message>
    <message>
        <source>Advanced trigger: Type</source>
        <translation>進階觸發：類型</translation>
    </message>
    <message>
        <source>Age of the traces</source>
        <translation>波形有幾舊</translation>
    </message>
    <message>
        <source>All of channel 1</source>
        <translation>通道 1 全選</translation>
    </message>
    <message>
        <source>All of channel 2</source>
        <translation>通道 2 全選</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>幅度</translation>
    </message>
    <message>
        <source>Amplitude: high level less low level</source>
        <translation>幅度：高電平減低電平</translation>
    </message>
    <message>
        <source>An error has stopped the acquisition</source>
        <translation>採集因為出錯而停咗</translation>
    </message>
    <message>
        <source>Answers that did not end in time: %1 in a minute</source>
        <translation>冇按時完結嘅回應：一分鐘內 %1 個</translation>
    </message>
    <message>
        <source>Attenuation of the probe</source>
        <translation>探頭嘅衰減比</translation>
    </message>
    <message>
        <source>Autoset</source>
        <translation>自動設定緊</translation>
    </message>
    <message>
        <source>Autoset: the scales are not known until it is over</source>
        <translation>自動設定：完成之前刻度未知</translation>
    </message>
    <message>
        <source>Bandwidth limit against noise</source>
        <translation>限制頻寬以減少噪音</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>底值</translation>
    </message>
    <message>
        <source>Before it: %1</source>
        <translation>之前：%1</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>響鐘</translation>
    </message>
    <message>
        <source>Both channels</source>
        <translation>兩個通道</translation>
    </message>
    <message>
        <source>Brightness of the grid on the instrument, in percent</source>
        <translation>儀器畫面上網格嘅亮度（百分比）</translation>
    </message>
    <message>
        <source>Brightness of the screen of the instrument</source>
        <translation>儀器螢幕嘅亮度</translation>
    </message>
    <message>
        <source>Brightness of the traces on the instrument, in percent</source>
        <translation>儀器畫面上波形嘅亮度（百分比）</translation>
    </message>
    <message>
        <source>Bytes that nobody asked for: %1 in a minute</source>
        <translation>冇人要求過嘅位元組：一分鐘內 %1 個</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation>通道 %1</translation>
    </message>
    <message>
        <source>Channel is displayed</source>
        <translation>顯示呢條通道</translation>
    </message>
    <message>
        <source>Channel of the voltage read-out</source>
        <translation>電壓讀數用邊條通道</translation>
    </message>
    <message>
        <source>Channel to measure</source>
        <translation>要量度嘅通道</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Choose and run measurements</source>
        <translation>揀選並進行量度</translation>
    </message>
    <message>
        <source>Choose from the list of commands</source>
        <translation>喺指令清單度揀</translation>
    </message>
    <message>
        <source>Choose what is measured first</source>
        <translation>請先揀測量項目</translation>
    </message>
    <message>
        <source>Chooses the file. A file with the same columns is continued</source>
        <translation>揀檔案。欄相同嘅檔案會繼續寫落去</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Click or drag: a record. Shift + drag: a stretch, Esc: none. Wheel: zoom. Arrow keys, Page Up and Down, Home, End: step. Dotted line: a gap</source>
        <translation>撳或者拖：揀記錄。Shift+拖：揀區段，Esc：取消區段。滾輪：縮放。方向鍵、Page Up/Down、Home、End：逐條移動。虛線：中斷</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Colour behind the traces</source>
        <translation>波形後面嘅背景顏色</translation>
    </message>
    <message>
        <source>Colour of the grid</source>
        <translation>網格嘅顏色</translation>
    </message>
    <message>
        <source>Colour of the trace</source>
        <translation>波形嘅顏色</translation>
    </message>
    <message>
        <source>Colours and styles of the traces</source>
        <translation>波形嘅顏色同樣式</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>指令列</translation>
    </message>
    <message>
        <source>Command line: Enter sends</source>
        <translation>指令列：撳 Enter 就傳送</translation>
    </message>
    <message>
        <source>Commands of the instrument</source>
        <translation>儀器嘅指令</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已複製</translation>
    </message>
    <message>
        <source>Copies the picture and its values for other programs (Ctrl+C)</source>
        <translation>複製圖像同數值畀其他程式用 (Ctrl+C)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>複製圖像</translation>
    </message>
    <message>
        <source>Copy the values</source>
        <translation>複製數值</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>數量</translation>
    </message>
    <message>
        <source>Coupling</source>
        <translation>耦合</translation>
    </message>
    <message>
        <source>Coupling of the input</source>
        <translation>輸入耦合</translation>
    </message>
    <message>
        <source>Coupling, probe, inversion and bandwidth limit of channel 1</source>
        <translation>通道 1 嘅耦合、探頭、反相同頻寬限制</translation>
    </message>
    <message>
        <source>Coupling, probe, inversion and bandwidth limit of channel 2</source>
        <translation>通道 2 嘅耦合、探頭、反相同頻寬限制</translation>
    </message>
    <message>
        <source>Cursors</source>
        <translation>游標</translation>
    </message>
    <message>
        <source>Cursors across</source>
        <translation>橫軸游標</translation>
    </message>
    <message>
        <source>Cursors off</source>
        <translation>關閉游標</translation>
    </message>
    <message>
        <source>Cursors up</source>
        <translation>縱軸游標</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Data bits of a byte</source>
        <translation>每個位元組嘅數據位元</translation>
    </message>
    <message>
        <source>Delay to CH1</source>
        <translation>對 CH1 延遲</translation>
    </message>
    <message>
        <source>Description of the chosen waveform</source>
        <translation>揀選咗嘅波形嘅說明</translation>
    </message>
    <message>
        <source>Device of the port</source>
        <translation>連接埠嘅裝置</translation>
    </message>
    <message>
        <source>Display channel 1</source>
        <translation>顯示通道 1</translation>
    </message>
    <message>
        <source>Display channel 2</source>
        <translation>顯示通道 2</translation>
    </message>
    <message>
        <source>Divisions across: the time base is not known</source>
        <translation>橫軸以格為單位：時基未知</translation>
    </message>
    <message>
        <source>Dots at the samples</source>
        <translation>喺取樣點畫點</translation>
    </message>
    <message>
        <source>Double click: the error log</source>
        <translation>撳兩下：打開錯誤記錄</translation>
    </message>
    <message>
        <source>Drawn as</source>
        <translation>顯示方式</translation>
    </message>
    <message>
        <source>Draws each of the last 20 records, the older the paler</source>
        <translation>畫出最近 20 條記錄，越舊越淡</translation>
    </message>
    <message>
        <source>Draws the lowest and highest value of all these records</source>
        <translation>畫出呢啲記錄嘅最低值同最高值</translation>
    </message>
    <message>
        <source>Draws the mean of all these records</source>
        <translation>畫出呢啲記錄嘅平均值</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>磁碟</translation>
    </message>
    <message>
        <source>Duty</source>
        <translation>佔空比</translation>
    </message>
    <message>
        <source>Empty the log</source>
        <translation>清空記錄</translation>
    </message>
    <message>
        <source>Ends the log; the file is whole</source>
        <translation>結束日誌；檔案完整</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>包絡</translation>
    </message>
    <message>
        <source>Error Log</source>
        <translation>錯誤記錄</translation>
    </message>
    <message>
        <source>Error log</source>
        <translation>錯誤記錄</translation>
    </message>
    <message>
        <source>Error log: %1 new</source>
        <translation>錯誤記錄：%1 條新</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>匯出</translation>
    </message>
    <message>
        <source>Export stretch…</source>
        <translation>匯出區段…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>匯出…</translation>
    </message>
    <message>
        <source>Fading</source>
        <translation>餘輝</translation>
    </message>
    <message>
        <source>Fall time</source>
        <translation>下降時間</translation>
    </message>
    <message>
        <source>Flat top</source>
        <translation>平頂窗</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Folders; double click or Enter opens</source>
        <translation>資料夾；撳兩下或者撳 Enter 打開</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>跟隨</translation>
    </message>
    <message>
        <source>Format of the picture file</source>
        <translation>圖片檔案嘅格式</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>頻率</translation>
    </message>
    <message>
        <source>Frequency Reject</source>
        <translation>頻率抑制</translation>
    </message>
    <message>
        <source>Goes to a pinned record; it stays when others go</source>
        <translation>去到釘住嘅記錄；其他記錄走咗佢都會留低</translation>
    </message>
    <message>
        <source>Goes with the newest record (F)</source>
        <translation>跟住最新嘅記錄 (F)</translation>
    </message>
    <message>
        <source>Graph of the record</source>
        <translation>記錄圖形</translation>
    </message>
    <message>
        <source>Hann</source>
        <translation>漢寧窗</translation>
    </message>
    <message>
        <source>Hann tells close frequencies apart, flat top shows true levels</source>
        <translation>漢寧窗分得開相近頻率，平頂窗顯示準確電平</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>高對比度</translation>
    </message>
    <message>
        <source>High level</source>
        <translation>高電平</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>Highest value</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Horizontal position in divisions</source>
        <translation>水平位置（格）</translation>
    </message>
    <message>
        <source>Horizontal position in divisions; double click for zero</source>
        <translation>水平位置（格）；撳兩下歸零</translation>
    </message>
    <message>
        <source>How many records before this one belong to the picture; a spectrum is their mean</source>
        <translation>呢條記錄之前有幾多條一齊顯示；頻譜係佢哋嘅平均</translation>
    </message>
    <message>
        <source>How records are taken</source>
        <translation>點樣擷取記錄</translation>
    </message>
    <message>
        <source>How records are taken; type Average for averaging</source>
        <translation>點樣擷取記錄；要平均就輸入 Average</translation>
    </message>
    <message>
        <source>How the trace looks</source>
        <translation>波形嘅樣</translation>
    </message>
    <message>
        <source>In use by another program: %1</source>
        <translation>被其他程式佔用：%1</translation>
    </message>
    <message>
        <source>In use: %1. The line settings of the setup: %2</source>
        <translation>用緊：%1。設定入面嘅線路參數：%2</translation>
    </message>
    <message>
        <source>In use: %1. The setup: %2 (OK in the RS-232 dialog applies it)</source>
        <translation>用緊：%1。設定入面：%2（喺 RS-232 視窗撳「確定」就生效）</translation>
    </message>
    <message>
        <source>It lies over the live traces now</source>
        <translation>而家已經疊喺即時波形上面</translation>
    </message>
    <message>
        <source>It may be the reply to another question</source>
        <translation>呢個可能係對另一個查詢嘅應答</translation>
    </message>
    <message>
        <source>Keep what has been set</source>
        <translation>保留已設定嘅值</translation>
    </message>
    <message>
        <source>Keeps this record, under the name, when others go</source>
        <translation>用呢個名留住呢條記錄，其他記錄走咗都唔會唔見</translation>
    </message>
    <message>
        <source>Lay a data file over the traces</source>
        <translation>將數據檔案疊加喺波形上面</translation>
    </message>
    <message>
        <source>Lay a saved waveform over the traces</source>
        <translation>將儲存咗嘅波形疊加上去</translation>
    </message>
    <message>
        <source>Lays what is drawn over the live traces, as Load does</source>
        <translation>將畫咗嘅波形疊喺即時波形上面，好似載入噉</translation>
    </message>
    <message>
        <source>Left out, with scales that are not known: %1</source>
        <translation>因為刻度未知而略過：%1</translation>
    </message>
    <message>
        <source>Let go</source>
        <translation>取消釘住</translation>
    </message>
    <message>
        <source>Let the instrument find its settings</source>
        <translation>等儀器自己搵設定</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>電平</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>授權條款</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>淺色</translation>
    </message>
    <message>
        <source>Like the desktop</source>
        <translation>跟住桌面</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>限值：</translation>
    </message>
    <message>
        <source>Line only</source>
        <translation>淨係畫線</translation>
    </message>
    <message>
        <source>Line rate in bits per second</source>
        <translation>線路速率（位元／秒）</translation>
    </message>
    <message>
        <source>Lit while the panel of the instrument is locked</source>
        <translation>儀器面板鎖定嗰陣會着燈</translation>
    </message>
    <message>
        <source>Load the trace of channel 1</source>
        <translation>載入通道 1 嘅波形</translation>
    </message>
    <message>
        <source>Load the trace of channel 2</source>
        <translation>載入通道 2 嘅波形</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>載入咗 %1</translation>
    </message>
    <message>
        <source>Loaded in the place of %1</source>
        <translation>已經代替咗 %1</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日誌</translation>
    </message>
    <message>
        <source>Lost: %1</source>
        <translation>遺失：%1</translation>
    </message>
    <message>
        <source>Low level</source>
        <translation>低電平</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>最低</translation>
    </message>
    <message>
        <source>Lowest value</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Manual and keys</source>
        <translation>手冊同按鍵</translation>
    </message>
    <message>
        <source>Math may be on: choose an entry in its box to be sure</source>
        <translation>數學運算可能開咗：喺佢個清單揀一項先可以肯定</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>Measure nothing</source>
        <translation>唔量度</translation>
    </message>
    <message>
        <source>Measure time</source>
        <translation>量度時間</translation>
    </message>
    <message>
        <source>Measure voltage</source>
        <translation>量度電壓</translation>
    </message>
    <message>
        <source>Measure what is ticked</source>
        <translation>量度已剔選嘅項目</translation>
    </message>
    <message>
        <source>Measured from the samples; choose a line for its statistics</source>
        <translation>由取樣點量度；揀一行睇佢嘅統計</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>測量</translation>
    </message>
    <message>
        <source>Measurement 1</source>
        <translation>量度結果 1</translation>
    </message>
    <message>
        <source>Measurement 10</source>
        <translation>量度結果 10</translation>
    </message>
    <message>
        <source>Measurement 11</source>
        <translation>量度結果 11</translation>
    </message>
    <message>
        <source>Measurement 12</source>
        <translation>量度結果 12</translation>
    </message>
    <message>
        <source>Measurement 13</source>
        <translation>量度結果 13</translation>
    </message>
    <message>
        <source>Measurement 14</source>
        <translation>量度結果 14</translation>
    </message>
    <message>
        <source>Measurement 15</source>
        <translation>量度結果 15</translation>
    </message>
    <message>
        <source>Measurement 16</source>
        <translation>量度結果 16</translation>
    </message>
    <message>
        <source>Measurement 2</source>
        <translation>量度結果 2</translation>
    </message>
    <message>
        <source>Measurement 3</source>
        <translation>量度結果 3</translation>
    </message>
    <message>
        <source>Measurement 4</source>
        <translation>量度結果 4</translation>
    </message>
    <message>
        <source>Measurement 5</source>
        <translation>量度結果 5</translation>
    </message>
    <message>
        <source>Measurement 6</source>
        <translation>量度結果 6</translation>
    </message>
    <message>
        <source>Measurement 7</source>
        <translation>量度結果 7</translation>
    </message>
    <message>
        <source>Measurement 8</source>
        <translation>量度結果 8</translation>
    </message>
    <message>
        <source>Measurement 9</source>
        <translation>量度結果 9</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>測量</translation>
    </message>
    <message>
        <source>Measurements of each record into a file, for hours (Ctrl+L)</source>
        <translation>將每條記錄嘅測量值寫入檔案，可以寫幾個鐘 (Ctrl+L)</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>量度緊</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>訊息</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Name of the pinned record</source>
        <translation>釘住記錄嘅名稱</translation>
    </message>
    <message>
        <source>Name of the plot</source>
        <translation>曲線嘅名</translation>
    </message>
    <message>
        <source>New lines in the error log</source>
        <translation>錯誤記錄有新內容</translation>
    </message>
    <message>
        <source>Next cursor mode</source>
        <translation>下一種游標模式</translation>
    </message>
    <message>
        <source>No answer to %1</source>
        <translation>%1 冇回應</translation>
    </message>
    <message>
        <source>No answer to the last %1 questions</source>
        <translation>最近 %1 個查詢冇回應</translation>
    </message>
    <message>
        <source>No cursors</source>
        <translation>冇游標</translation>
    </message>
    <message>
        <source>No more records can be pinned</source>
        <translation>唔可以再釘更多記錄</translation>
    </message>
    <message>
        <source>No program here shows the manual. It is %1</source>
        <translation>呢度冇程式可以顯示手冊。手冊喺 %1</translation>
    </message>
    <message>
        <source>No record for %1 s</source>
        <translation>已經 %1 秒冇記錄</translation>
    </message>
    <message>
        <source>No record yet: they are kept as they come</source>
        <translation>未有記錄：記錄一到就會保存</translation>
    </message>
    <message>
        <source>No reference is free: press %1 first</source>
        <translation>冇空閒嘅參考波形：請先撳 %1</translation>
    </message>
    <message>
        <source>No reference is free: remove one in the panel first</source>
        <translation>冇空閒嘅參考波形：請先喺面板移除一個</translation>
    </message>
    <message>
        <source>No room for all of %1: press %2 first</source>
        <translation>擺唔晒 %1：請先撳「%2」</translation>
    </message>
    <message>
        <source>No rows while the traces are stopped</source>
        <translation>波形停咗期間冇新行</translation>
    </message>
    <message>
        <source>No set is chosen</source>
        <translation>未選擇波形組</translation>
    </message>
    <message>
        <source>No window</source>
        <translation>唔加窗</translation>
    </message>
    <message>
        <source>Noise Reject</source>
        <translation>噪音抑制</translation>
    </message>
    <message>
        <source>None of channel 1</source>
        <translation>通道 1 全部唔選</translation>
    </message>
    <message>
        <source>None of channel 2</source>
        <translation>通道 2 全部唔選</translation>
    </message>
    <message>
        <source>Not a limit: %1. Write them as vpp &gt; 1.2 V; freq &lt; 990 Hz</source>
        <translation>唔係限值：%1。請寫成 vpp &gt; 1.2 V; freq &lt; 990 Hz</translation>
    </message>
    <message>
        <source>Not present: %1</source>
        <translation>搵唔到：%1</translation>
    </message>
    <message>
        <source>Not sent: the text has more than one line</source>
        <translation>未傳送：文字多過一行</translation>
    </message>
    <message>
        <source>Not written: records have gone meanwhile; pin what you want to keep</source>
        <translation>冇寫入：期間有記錄走咗；想保留嘅請釘住</translation>
    </message>
    <message>
        <source>Nothing pinned</source>
        <translation>冇釘住記錄</translation>
    </message>
    <message>
        <source>Nothing to export: no record of this channel is there</source>
        <translation>沒有可匯出嘅內容：入面冇呢個通道嘅記錄</translation>
    </message>
    <message>
        <source>Nothing to export: the scales of these records are not known</source>
        <translation>冇嘢可以匯出：呢啲記錄嘅刻度未知</translation>
    </message>
    <message>
        <source>Nothing will be kept. %1</source>
        <translation>乜都唔會保存。%1</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Number of the port</source>
        <translation>連接埠編號</translation>
    </message>
    <message>
        <source>Number of the port; 0 is the simulated instrument</source>
        <translation>連接埠編號；0 係仿真儀器</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Of the stretch that is marked, else of all records</source>
        <translation>所標區段嘅統計，未標就係全部記錄</translation>
    </message>
    <message>
        <source>Open the error log</source>
        <translation>打開錯誤記錄</translation>
    </message>
    <message>
        <source>Overshoot</source>
        <translation>過衝</translation>
    </message>
    <message>
        <source>Parameter of the command</source>
        <translation>指令嘅參數</translation>
    </message>
    <message>
        <source>Parity bit of a byte</source>
        <translation>每個位元組嘅奇偶校驗位元</translation>
    </message>
    <message>
        <source>Peak to peak</source>
        <translation>峰峰值</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>週期</translation>
    </message>
    <message>
        <source>Phase to CH1</source>
        <translation>對 CH1 相位</translation>
    </message>
    <message>
        <source>Pick the time per division</source>
        <translation>揀選每格時間</translation>
    </message>
    <message>
        <source>Pick the volts per division of channel 1</source>
        <translation>揀選通道 1 嘅每格伏特</translation>
    </message>
    <message>
        <source>Pick the volts per division of channel 2</source>
        <translation>揀選通道 2 嘅每格伏特</translation>
    </message>
    <message>
        <source>Picture of the chosen waveform</source>
        <translation>揀選咗嘅波形嘅圖片</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>釘住</translation>
    </message>
    <message>
        <source>Pinned records</source>
        <translation>釘住嘅記錄</translation>
    </message>
    <message>
        <source>Pinned: %1</source>
        <translation>已釘住：%1</translation>
    </message>
    <message>
        <source>Pins each record that is beyond a limit</source>
        <translation>釘住每條超限嘅記錄</translation>
    </message>
    <message>
        <source>Positive width in percent of the period</source>
        <translation>正脈寬佔週期嘅百分比</translation>
    </message>
    <message>
        <source>Print the graph</source>
        <translation>打印圖形</translation>
    </message>
    <message>
        <source>Print the picture</source>
        <translation>打印圖片</translation>
    </message>
    <message>
        <source>Print the report</source>
        <translation>打印報告</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>已列印</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>已列印到 %1</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>有效值</translation>
    </message>
    <message>
        <source>Read the instrument again with the present port settings</source>
        <translation>用而家嘅連接埠設定再讀取儀器</translation>
    </message>
    <message>
        <source>Read the instrument, then start and stop the traces</source>
        <translation>讀取儀器，之後開始同停止波形</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>記錄儀</translation>
    </message>
    <message>
        <source>Recorder's log: %1</source>
        <translation>記錄儀日誌：%1</translation>
    </message>
    <message>
        <source>Recorder's log: %1 cannot be written. %2. Give them up?</source>
        <translation>記錄儀日誌：%1 寫唔到。%2。放棄佢哋？</translation>
    </message>
    <message>
        <source>Records along time</source>
        <translation>按時間排列嘅記錄</translation>
    </message>
    <message>
        <source>Records before this one</source>
        <translation>之前嘅記錄</translation>
    </message>
    <message>
        <source>Records in an average</source>
        <translation>每次平均嘅記錄數目</translation>
    </message>
    <message>
        <source>Records stay short: %1 of %2 bytes came</source>
        <translation>記錄唔完整：%2 個位元組只收到 %1 個</translation>
    </message>
    <message>
        <source>Records that came too late: %1 in a minute</source>
        <translation>嚟得太遲嘅記錄：一分鐘內 %1 個</translation>
    </message>
    <message>
        <source>Records that did not come: %1 in a minute</source>
        <translation>冇嚟到嘅記錄：一分鐘內 %1 個</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>移除 %1</translation>
    </message>
    <message>
        <source>Remove the loaded waveforms</source>
        <translation>移除載入咗嘅波形</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>改名</translation>
    </message>
    <message>
        <source>Replies and records</source>
        <translation>回應同記錄</translation>
    </message>
    <message>
        <source>Rise time</source>
        <translation>上升時間</translation>
    </message>
    <message>
        <source>Root mean square</source>
        <translation>均方根值</translation>
    </message>
    <message>
        <source>Rows beyond a limit name it. The short names stand in the list of measurements</source>
        <translation>超限嘅行會寫明限值。簡稱喺測量列表</translation>
    </message>
    <message>
        <source>Run or stop the acquisition of the instrument itself</source>
        <translation>運行或者停止儀器本身嘅擷取</translation>
    </message>
    <message>
        <source>Run the quick time measurements</source>
        <translation>進行快速時間量度</translation>
    </message>
    <message>
        <source>Run-time error %1</source>
        <translation>執行錯誤 %1</translation>
    </message>
    <message>
        <source>SIMULATED</source>
        <translation>仿真訊號</translation>
    </message>
    <message>
        <source>Samples as dots</source>
        <translation>取樣以點顯示</translation>
    </message>
    <message>
        <source>Samples joined by lines</source>
        <translation>取樣以線相連</translation>
    </message>
    <message>
        <source>Samples of a record</source>
        <translation>每個記錄嘅取樣數目</translation>
    </message>
    <message>
        <source>Save as a waveform set</source>
        <translation>另存做波形檔案組</translation>
    </message>
    <message>
        <source>Save picture and data</source>
        <translation>儲存圖片同數據</translation>
    </message>
    <message>
        <source>Save the log and close</source>
        <translation>儲存記錄並關閉</translation>
    </message>
    <message>
        <source>Save the report as a file</source>
        <translation>將報告儲存做檔案</translation>
    </message>
    <message>
        <source>Save the setup and close</source>
        <translation>儲存設定並關閉</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>儲存咗 %1</translation>
    </message>
    <message>
        <source>Saved %1, %2 and %3 in %4</source>
        <translation>已將 %1、%2 同 %3 儲存到 %4</translation>
    </message>
    <message>
        <source>Saved waveforms</source>
        <translation>儲存咗嘅波形</translation>
    </message>
    <message>
        <source>Saves this record as a waveform set, which Load in the panel shows (Ctrl+S)</source>
        <translation>將呢條記錄另存做波形，可以喺面板載入 (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>儲存…</translation>
    </message>
    <message>
        <source>Scales that are not the traces'</source>
        <translation>唔係波形所用嘅刻度</translation>
    </message>
    <message>
        <source>Send the command</source>
        <translation>傳送指令</translation>
    </message>
    <message>
        <source>Set it and stay open, to try others</source>
        <translation>設定並保持開啟，方便試其他值</translation>
    </message>
    <message>
        <source>Setup loaded from %1</source>
        <translation>由 %1 載入咗設定</translation>
    </message>
    <message>
        <source>Setup saved to %1</source>
        <translation>設定儲存咗去 %1</translation>
    </message>
    <message>
        <source>Show in the panel</source>
        <translation>喺面板顯示</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>斜率</translation>
    </message>
    <message>
        <source>Sounds the bell at each record that is beyond a limit</source>
        <translation>每有超限記錄就響鐘</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>訊號源</translation>
    </message>
    <message>
        <source>Source, mode, slope and coupling of the trigger</source>
        <translation>觸發嘅訊號源、模式、斜率同耦合</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>頻譜</translation>
    </message>
    <message>
        <source>Start the log…</source>
        <translation>開始日誌…</translation>
    </message>
    <message>
        <source>State of the acquisition</source>
        <translation>擷取狀態</translation>
    </message>
    <message>
        <source>State of the connection</source>
        <translation>連接狀態</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Std deviation</source>
        <translation>標準差</translation>
    </message>
    <message>
        <source>Stop bits behind a byte</source>
        <translation>每個位元組之後嘅停止位元</translation>
    </message>
    <message>
        <source>Stop the log</source>
        <translation>停止日誌</translation>
    </message>
    <message>
        <source>Stopped: press %1 to go on</source>
        <translation>停咗：撳 %1 繼續</translation>
    </message>
    <message>
        <source>Sum or difference of the channels</source>
        <translation>通道嘅和或者差</translation>
    </message>
    <message>
        <source>Take all texts away</source>
        <translation>移除全部文字</translation>
    </message>
    <message>
        <source>Take the last text away</source>
        <translation>移除最後嘅文字</translation>
    </message>
    <message>
        <source>Text to write onto the picture</source>
        <translation>要寫喺圖片上嘅文字</translation>
    </message>
    <message>
        <source>The .csv is empty: no whole record of %1</source>
        <translation>.csv 係空嘅：未有 %1 嘅完整記錄</translation>
    </message>
    <message>
        <source>The acquisition has stopped: %1</source>
        <translation>擷取已停止：%1</translation>
    </message>
    <message>
        <source>The channels that are shown, stepped through and measured</source>
        <translation>顯示、逐條睇同測量嘅通道</translation>
    </message>
    <message>
        <source>The columns of the log</source>
        <translation>日誌嘅欄</translation>
    </message>
    <message>
        <source>The connection is lost</source>
        <translation>連線斷咗</translation>
    </message>
    <message>
        <source>The connection is lost: %1</source>
        <translation>連線斷咗：%1</translation>
    </message>
    <message>
        <source>The cursors were read in another scale</source>
        <translation>游標讀數係按另一檔位計嘅</translation>
    </message>
    <message>
        <source>The data file</source>
        <translation>數據檔案</translation>
    </message>
    <message>
        <source>The disk is full; waiting in memory: %1</source>
        <translation>磁碟滿咗；喺記憶體等待寫入：%1</translation>
    </message>
    <message>
        <source>The file is not as a panel saves it: its trace may be wrong</source>
        <translation>呢個檔案同面板儲存嘅唔同：條線可能唔啱</translation>
    </message>
    <message>
        <source>The folder that is shown</source>
        <translation>而家顯示緊嘅資料夾</translation>
    </message>
    <message>
        <source>The instrument is being read</source>
        <translation>讀取緊儀器</translation>
    </message>
    <message>
        <source>The instrument is busy: %1</source>
        <translation>儀器正忙：%1</translation>
    </message>
    <message>
        <source>The instrument is stopped: press %1</source>
        <translation>儀器停咗：撳 %1</translation>
    </message>
    <message>
        <source>The instrument is stopped: press %1 twice</source>
        <translation>儀器停咗：撳兩下 %1</translation>
    </message>
    <message>
        <source>The instrument may have another value</source>
        <translation>儀器入面嘅值可能唔同</translation>
    </message>
    <message>
        <source>The knob stands there already: turn it away and back to send its scale</source>
        <translation>旋鈕已經喺嗰度：轉開再轉返先會傳送佢嘅檔位</translation>
    </message>
    <message>
        <source>The last question had no answer: press %1</source>
        <translation>上一個查詢冇回應：請撳「%1」</translation>
    </message>
    <message>
        <source>The log goes on</source>
        <translation>日誌繼續記錄</translation>
    </message>
    <message>
        <source>The log has ended</source>
        <translation>日誌已經結束</translation>
    </message>
    <message>
        <source>The old %1 is kept as %2</source>
        <translation>原本嘅 %1 保留咗做 %2</translation>
    </message>
    <message>
        <source>The picture to save</source>
        <translation>要儲存嘅圖片</translation>
    </message>
    <message>
        <source>The picture's name must end in png, jpg, bmp, gif, pcx or tif</source>
        <translation>圖片個名要以 png、jpg、bmp、gif、pcx 或者 tif 結尾</translation>
    </message>
    <message>
        <source>The port in use</source>
        <translation>用緊嘅連接埠</translation>
    </message>
    <message>
        <source>The product</source>
        <translation>產品</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>報告</translation>
    </message>
    <message>
        <source>The same sweep was fetched: %1</source>
        <translation>同一次掃描讀取咗：%1</translation>
    </message>
    <message>
        <source>The scales are not known: press %1 to read them</source>
        <translation>刻度未知：撳 %1 讀取</translation>
    </message>
    <message>
        <source>The scales are not known: press %1 to read them, then F5 to go on</source>
        <translation>刻度未知：撳 %1 讀取，再撳 F5 繼續</translation>
    </message>
    <message>
        <source>The scales may be those of another instrument: press %1 to read them</source>
        <translation>檔位可能係第部儀器嘅：撳「%1」再讀取</translation>
    </message>
    <message>
        <source>The setup could not be saved to %1.</source>
        <translation>設定儲存唔到去 %1。</translation>
    </message>
    <message>
        <source>The unit of the levels</source>
        <translation>電平單位</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主題</translation>
    </message>
    <message>
        <source>There is no such port</source>
        <translation>冇呢個連接埠</translation>
    </message>
    <message>
        <source>These traces are of an earlier connection</source>
        <translation>呢啲波形嚟自之前嘅連線</translation>
    </message>
    <message>
        <source>This record alone</source>
        <translation>淨係呢條記錄</translation>
    </message>
    <message>
        <source>This record is cut: a set needs a whole one</source>
        <translation>呢條記錄唔完整：要一條完整嘅</translation>
    </message>
    <message>
        <source>This record may go with the others again</source>
        <translation>呢條記錄可以再同其他一齊走</translation>
    </message>
    <message>
        <source>This version has new files beside those that you have changed: %1</source>
        <translation>呢個版本嘅新檔案已經擺喺你改過嘅檔案旁邊：%1</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Time of the falling edge</source>
        <translation>下降時間</translation>
    </message>
    <message>
        <source>Time of the rising edge</source>
        <translation>上升時間</translation>
    </message>
    <message>
        <source>Time per division</source>
        <translation>每格時間</translation>
    </message>
    <message>
        <source>Time per division: drag, wheel, arrow keys, or click a value</source>
        <translation>每格時間：拖曳、滾輪、方向鍵，或者撳一個數值</translation>
    </message>
    <message>
        <source>Time that the instrument takes</source>
        <translation>儀器需要嘅時間</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>頂值</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>Trace upside down</source>
        <translation>波形上下倒轉</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>Traces paused for %1</source>
        <translation>軌跡暫停：%1</translation>
    </message>
    <message>
        <source>Traces: drag the cursors, or move them with the arrow keys; C changes the cursor. Double click or E: larger, Escape: back</source>
        <translation>波形：拖曳游標，或者用方向鍵移動；C 鍵轉另一條游標。撳兩下或者 E 鍵放大，Esc 鍵還原</translation>
    </message>
    <message>
        <source>Trigger level in volts</source>
        <translation>觸發電平（伏特）</translation>
    </message>
    <message>
        <source>Trigger level in volts; double click for zero</source>
        <translation>觸發電平（伏特）；撳兩下歸零</translation>
    </message>
    <message>
        <source>Two cursors with their distance: drag them, or use the arrow keys in the graph</source>
        <translation>兩個游標同佢哋嘅距離：可以拖，或者喺圖形用方向鍵</translation>
    </message>
    <message>
        <source>V/div not known</source>
        <translation>V/div 未知</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Vertical position of channel 1 in divisions</source>
        <translation>通道 1 嘅垂直位置（格）</translation>
    </message>
    <message>
        <source>Vertical position of channel 1 in divisions; double click for zero</source>
        <translation>通道 1 嘅垂直位置（格）；撳兩下歸零</translation>
    </message>
    <message>
        <source>Vertical position of channel 2 in divisions</source>
        <translation>通道 2 嘅垂直位置（格）</translation>
    </message>
    <message>
        <source>Vertical position of channel 2 in divisions; double click for zero</source>
        <translation>通道 2 嘅垂直位置（格）；撳兩下歸零</translation>
    </message>
    <message>
        <source>Volts per division of channel 1</source>
        <translation>通道 1 嘅每格伏特</translation>
    </message>
    <message>
        <source>Volts per division of channel 1: drag, wheel, arrow keys, or click a value</source>
        <translation>通道 1 嘅每格伏特：拖曳、滾輪、方向鍵，或者撳一個數值</translation>
    </message>
    <message>
        <source>Volts per division of channel 2</source>
        <translation>通道 2 嘅每格伏特</translation>
    </message>
    <message>
        <source>Volts per division of channel 2: drag, wheel, arrow keys, or click a value</source>
        <translation>通道 2 嘅每格伏特：拖曳、滾輪、方向鍵，或者撳一個數值</translation>
    </message>
    <message>
        <source>Waiting for the answer to %1</source>
        <translation>等緊 %1 嘅回應</translation>
    </message>
    <message>
        <source>Waiting in memory: %1. %2</source>
        <translation>喺記憶體等待寫入：%1。%2</translation>
    </message>
    <message>
        <source>What is drawn of the records</source>
        <translation>記錄嘅繪製內容</translation>
    </message>
    <message>
        <source>What is set</source>
        <translation>設定對象</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>圖入面係乜嘢</translation>
    </message>
    <message>
        <source>What the command does</source>
        <translation>指令嘅作用</translation>
    </message>
    <message>
        <source>When the last record of each channel came</source>
        <translation>每條通道最近一次收到記錄係幾時</translation>
    </message>
    <message>
        <source>Who saves it</source>
        <translation>邊個儲存</translation>
    </message>
    <message>
        <source>Why the set is not loaded</source>
        <translation>波形組冇載入嘅原因</translation>
    </message>
    <message>
        <source>Width of the negative pulse</source>
        <translation>負脈寬</translation>
    </message>
    <message>
        <source>Width of the positive pulse</source>
        <translation>正脈寬</translation>
    </message>
    <message>
        <source>Window of the spectrum</source>
        <translation>頻譜窗函數</translation>
    </message>
    <message>
        <source>With the last %1</source>
        <translation>連埋最近 %1 條</translation>
    </message>
    <message>
        <source>With the one before</source>
        <translation>連埋前一條</translation>
    </message>
    <message>
        <source>Without CH%1, which is of another sweep</source>
        <translation>唔包 CH%1：屬於另一次掃描</translation>
    </message>
    <message>
        <source>Write the shown record to text.csv</source>
        <translation>將顯示緊嘅記錄寫入 text.csv</translation>
    </message>
    <message>
        <source>Write the text where the picture is clicked</source>
        <translation>喺圖片上撳嘅位置寫入文字</translation>
    </message>
    <message>
        <source>Writes the marked stretch, else this record, as CSV in volts and seconds (Ctrl+E)</source>
        <translation>將所標區段（未標就係呢條記錄）以伏特同秒寫成 CSV (Ctrl+E)</translation>
    </message>
    <message>
        <source>X-Y</source>
        <translation>X-Y</translation>
    </message>
    <message>
        <source>X-Y needs both channels of one sweep: display both, press Run/Stop, and wait for both</source>
        <translation>X-Y 要同一次掃描嘅兩個通道：顯示兩個，撳 Run/Stop，等兩個都到</translation>
    </message>
    <message>
        <source>another port</source>
        <translation>另一個埠</translation>
    </message>
    <message>
        <source>clipped</source>
        <translation>削波</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>平直</translation>
    </message>
    <message>
        <source>from the zero of %1:</source>
        <translation>由 %1 嘅零點計起：</translation>
    </message>
    <message>
        <source>irregular</source>
        <translation>唔規則</translation>
    </message>
    <message>
        <source>less than a period</source>
        <translation>唔夠一個週期</translation>
    </message>
    <message>
        <source>math, which has no volts</source>
        <translation>數學運算，冇伏特值</translation>
    </message>
    <message>
        <source>more than 500 lines of data</source>
        <translation>數據超過 500 行</translation>
    </message>
    <message>
        <source>not certain</source>
        <translation>不確定</translation>
    </message>
    <message>
        <source>not of one sweep</source>
        <translation>唔係同一次掃描</translation>
    </message>
    <message>
        <source>nothing fetched</source>
        <translation>冇讀取</translation>
    </message>
    <message>
        <source>opened anew</source>
        <translation>重新打開</translation>
    </message>
    <message>
        <source>other period</source>
        <translation>週期唔同</translation>
    </message>
    <message>
        <source>other scales</source>
        <translation>刻度唔同</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>已釘住</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>連接埠 %1</translation>
    </message>
    <message>
        <source>port %1 - %2</source>
        <translation>連接埠 %1 - %2</translation>
    </message>
    <message>
        <source>port %1, %2 baud %3</source>
        <translation>連接埠 %1，%2 波特 %3</translation>
    </message>
    <message>
        <source>record %1 of %2</source>
        <translation>第 %1 條，共 %2 條</translation>
    </message>
    <message>
        <source>record cut</source>
        <translation>記錄不完整</translation>
    </message>
    <message>
        <source>s/div not known</source>
        <translation>s/div 未知</translation>
    </message>
    <message>
        <source>scale not known</source>
        <translation>刻度未知</translation>
    </message>
    <message>
        <source>simulated instrument</source>
        <translation>仿真儀器</translation>
    </message>
    <message>
        <source>stopped meanwhile</source>
        <translation>期間停過</translation>
    </message>
    <message>
        <source>too few samples</source>
        <translation>取樣點太少</translation>
    </message>
</context>
</TS>
