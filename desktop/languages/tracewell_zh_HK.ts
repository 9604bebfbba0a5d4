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
        <source>%1 holds no setup</source>
        <translation>%1 入面冇設定</translation>
    </message>
    <message>
        <source>%1 was changed by another program, and that is kept as %2</source>
        <translation>%1 俾另一個程式改過，嗰個版本會保留做 %2</translation>
    </message>
    <message>
        <source>%1, %2: different sweeps</source>
        <translation>%1、%2：唔同次掃描</translation>
    </message>
    <message>
        <source>%1: %2 in its file</source>
        <translation>%1：檔案入面係 %2</translation>
    </message>
    <message>
        <source>%1: %2 of %3 settings not confirmed</source>
        <translation>%1：%3 項設定有 %2 項未確認</translation>
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
        <source>%1: live</source>
        <translation>%1：實時</translation>
    </message>
    <message>
        <source>%1: no answer to %2 of %3 questions</source>
        <translation>%1：%3 個查詢有 %2 個冇回應</translation>
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
        <source>%1: question %2 of %3</source>
        <translation>%1：第 %2 個查詢，共 %3 個</translation>
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
        <source>%1: unchanged for %2 min</source>
        <translation>%1：%2 分鐘無變化</translation>
    </message>
    <message>
        <source>%1: unchanged for %2 s</source>
        <translation>%1：%2 秒無變化</translation>
    </message>
    <message>
        <source>%1: wait until the settings have been sent</source>
        <translation>%1：請等設定傳送完</translation>
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
        <source>About Tracewell</source>
        <translation>關於 Tracewell</translation>
    </message>
    <message>
        <source>Acquisition mode and averaging</source>
        <translation>擷取模式同平均</translation>
    </message>
    <message>
        <source>Advanced trigger</source>
        <translation>進階觸發</translation>
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
        <source>Amplitude: high level less low level</source>
        <translation>幅度：高電平減低電平</translation>
    </message>
    <message>
        <source>Answers without a line end: %1 in a minute</source>
        <translation>冇行尾嘅回應：一分鐘內 %1 次</translation>
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
        <source>Bandwidth limit against noise</source>
        <translation>限制頻寬以減少噪音</translation>
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
        <source>Choose and run measurements</source>
        <translation>揀選並進行量度</translation>
    </message>
    <message>
        <source>Choose from the list of commands</source>
        <translation>喺指令清單度揀</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
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
        <source>Cursors off</source>
        <translation>關閉游標</translation>
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
        <source>Dots at the samples</source>
        <translation>喺取樣點畫點</translation>
    </message>
    <message>
        <source>Double click: the error log</source>
        <translation>撳兩下：打開錯誤記錄</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>磁碟</translation>
    </message>
    <message>
        <source>Empty the log</source>
        <translation>清空記錄</translation>
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
        <source>Folders</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Folders; double click or Enter opens</source>
        <translation>資料夾；撳兩下或者撳 Enter 打開</translation>
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
        <source>High contrast</source>
        <translation>高對比度</translation>
    </message>
    <message>
        <source>High level</source>
        <translation>高電平</translation>
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
        <source>Keep what has been set</source>
        <translation>保留已設定嘅值</translation>
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
        <source>Let the instrument find its settings</source>
        <translation>等儀器自己搵設定</translation>
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
        <source>Low level</source>
        <translation>低電平</translation>
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
        <source>Measuring</source>
        <translation>量度緊</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>訊息</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
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
        <source>No program here shows the manual. It is %1</source>
        <translation>呢度冇程式可以顯示手冊。手冊喺 %1</translation>
    </message>
    <message>
        <source>No record for %1 s</source>
        <translation>已經 %1 秒冇記錄</translation>
    </message>
    <message>
        <source>No room for all of %1: press %2 first</source>
        <translation>擺唔晒 %1：請先撳「%2」</translation>
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
        <source>Not present: %1</source>
        <translation>搵唔到：%1</translation>
    </message>
    <message>
        <source>Not sent: the text has more than one line</source>
        <translation>未傳送：文字多過一行</translation>
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
        <source>Open the error log</source>
        <translation>打開錯誤記錄</translation>
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
        <source>Read the instrument again with the present port settings</source>
        <translation>用而家嘅連接埠設定再讀取儀器</translation>
    </message>
    <message>
        <source>Read the instrument, then start and stop the traces</source>
        <translation>讀取儀器，之後開始同停止波形</translation>
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
        <source>Replies and records</source>
        <translation>回應同記錄</translation>
    </message>
    <message>
        <source>Root mean square</source>
        <translation>均方根值</translation>
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
        <source>Slope</source>
        <translation>斜率</translation>
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
        <source>State of the acquisition</source>
        <translation>擷取狀態</translation>
    </message>
    <message>
        <source>State of the connection</source>
        <translation>連接狀態</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Stop bits behind a byte</source>
        <translation>每個位元組之後嘅停止位元</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停咗</translation>
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
        <source>The acquisition has stopped: %1</source>
        <translation>擷取已停止：%1</translation>
    </message>
    <message>
        <source>The data file</source>
        <translation>數據檔案</translation>
    </message>
    <message>
        <source>The folder that is shown</source>
        <translation>而家顯示緊嘅資料夾</translation>
    </message>
    <message>
        <source>The instrument has not told this value</source>
        <translation>儀器冇話到呢個數值</translation>
    </message>
    <message>
        <source>The instrument is being read</source>
        <translation>讀取緊儀器</translation>
    </message>
    <message>
        <source>The instrument is stopped: press %1</source>
        <translation>儀器停咗：撳 %1</translation>
    </message>
    <message>
        <source>The last question had no answer: press %1</source>
        <translation>上一個查詢冇回應：請撳「%1」</translation>
    </message>
    <message>
        <source>The picture to save</source>
        <translation>要儲存嘅圖片</translation>
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
        <source>The scales are not known: press %1 to read them</source>
        <translation>刻度未知：撳 %1 讀取</translation>
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
        <source>Theme</source>
        <translation>主題</translation>
    </message>
    <message>
        <source>There is no such port</source>
        <translation>冇呢個連接埠</translation>
    </message>
    <message>
        <source>These traces came over the connection before</source>
        <translation>呢啲波形嚟自之前嘅連線</translation>
    </message>
    <message>
        <source>This version has new files beside those that you have changed: %1</source>
        <translation>呢個版本嘅新檔案已經擺喺你改過嘅檔案旁邊：%1</translation>
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
        <source>Trace upside down</source>
        <translation>波形上下倒轉</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>波形</translation>
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
        <source>Width of the negative pulse</source>
        <translation>負脈寬</translation>
    </message>
    <message>
        <source>Width of the positive pulse</source>
        <translation>正脈寬</translation>
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
        <source>from the zero of %1:</source>
        <translation>由 %1 嘅零點計起：</translation>
    </message>
    <message>
        <source>not answered</source>
        <translation>未有回應</translation>
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
        <source>simulated instrument</source>
        <translation>仿真儀器</translation>
    </message>
</context>
</TS>
